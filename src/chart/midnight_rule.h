// The rule for a birth at exactly 00:00: it counts for the day after.
#pragma once

#include <optional>

#include "calendar/picked_date.h"

// The day after a date that exists, or nothing after the last day of the lists, 31 December 2012.
// Intentional: nothing after 31 December 1999 either.
constexpr std::optional<PickedDate> dayAfter(PickedDate date) {
    ++date.dayPosition;
    if (date.exists()) return date;
    date.dayPosition = 0;
    ++date.monthPosition;
    if (date.monthPosition < monthCount) return date;
    if (date.year() == 1999 || date.year() == firstYear + yearCount - 1) return std::nullopt;
    return PickedDate{0, 0, date.yearPosition + 1};
}
