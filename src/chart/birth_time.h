// The rules for the time of birth: the double-hour, and the day that midnight begins.
#pragma once

#include <cstdint>
#include <optional>

#include "calendar/picked_date.h"

// The double-hour of a time of day (hour 0..23, minute 0..59): 1 = "Zi" .. 12 = "Hai". Intentional: each
// begins a minute later than in the tradition, so 23:00 is still "Hai" and 01:00 still "Zi".
constexpr std::int16_t doubleHourOf(int hour, int minute) {
    return static_cast<std::int16_t>((60 * hour + minute + 59) / 120 % 12 + 1);
}

static_assert(doubleHourOf(0, 59) == 1 && doubleHourOf(1, 0) == 1 && doubleHourOf(1, 1) == 2);
static_assert(doubleHourOf(13, 0) == 7 && doubleHourOf(13, 1) == 8);
static_assert(doubleHourOf(22, 30) == 12 && doubleHourOf(23, 0) == 12 && doubleHourOf(23, 1) == 1);

// The day after a date that exists, for which a birth at exactly 00:00 counts. 31 December 2012, where the
// lists end, has none. Intentional: 31 December 1999 has none either.
constexpr std::optional<PickedDate> dayAfter(PickedDate date) {
    ++date.dayPosition;
    if (date.exists()) return date;
    date.dayPosition = 0;
    ++date.monthPosition;
    if (date.monthPosition < monthCount) return date;
    if (date.year() == 1999 || date.year() == firstYear + yearCount - 1) return std::nullopt;
    return PickedDate{0, 0, date.yearPosition + 1};
}
