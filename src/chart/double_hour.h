// The twelve double-hours of the Chinese day.
#pragma once

#include <cstdint>

// The double-hour of a time of day (hour 0..23, minute 0..59): 1 = "Zi" .. 12 = "Hai". Each runs from one
// minute past an odd hour to the next odd hour on the hour; so 23:00 is still "Hai" and 01:00 still "Zi".
// Intentional: the usual reckoning begins each on the odd hour itself.
constexpr std::int16_t doubleHourOf(int hour, int minute) {
    const bool even = hour % 2 == 0;
    const int number = even ? hour / 2 + 1 : (minute == 0 ? (hour + 1) / 2 : (hour + 3) / 2);
    return static_cast<std::int16_t>(number == 13 ? 1 : number);
}

static_assert(doubleHourOf(0, 59) == 1 && doubleHourOf(1, 0) == 1 && doubleHourOf(1, 1) == 2);
static_assert(doubleHourOf(13, 0) == 7 && doubleHourOf(13, 1) == 8);
static_assert(doubleHourOf(22, 30) == 12 && doubleHourOf(23, 0) == 12 && doubleHourOf(23, 1) == 1);
