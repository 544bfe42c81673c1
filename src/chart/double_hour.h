// The twelve double-hours of the Chinese day.
#pragma once

#include <cstdint>

// The double-hour of a time of day (hour 0..23, minute 0..59): 1 = "Zi" .. 12 = "Hai". Intentional: each
// begins a minute later than in the tradition, so 23:00 is still "Hai" and 01:00 still "Zi".
constexpr std::int16_t doubleHourOf(int hour, int minute) {
    return static_cast<std::int16_t>((60 * hour + minute + 59) / 120 % 12 + 1);
}

static_assert(doubleHourOf(0, 59) == 1 && doubleHourOf(1, 0) == 1 && doubleHourOf(1, 1) == 2);
static_assert(doubleHourOf(13, 0) == 7 && doubleHourOf(13, 1) == 8);
static_assert(doubleHourOf(22, 30) == 12 && doubleHourOf(23, 0) == 12 && doubleHourOf(23, 1) == 1);
