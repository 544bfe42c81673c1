// The rule for a birth at exactly 00:00: it counts for the day after.
#pragma once

#include <optional>

#include "calendar/picked_date.h"

// The day after a date that exists, or nothing after 31 December 1999 and 31 December 2012. That 1999 does
// not turn is kept on purpose; 2012 is the end of the list.
constexpr std::optional<PickedDate> dayAfter(PickedDate date) {
    if (date.day() < date.monthLength())
        return PickedDate{date.dayPosition + 1, date.monthPosition, date.yearPosition};
    if (date.monthPosition + 1 < monthCount) return PickedDate{0, date.monthPosition + 1, date.yearPosition};
    if (date.year() == 1999 || date.year() == firstYear + yearCount - 1) return std::nullopt;
    return PickedDate{0, 0, date.yearPosition + 1};
}
