// The rule for a birth at exactly 00:00: it counts for the day after, and the lists move there.
#pragma once

#include "calendar/date_lists.h"

// Moves the lists on by one day. Returns false, with nothing moved, where the lists can't follow: on
// 31 December 1999 and on 31 December 2012. Leap years are those divisible by 4.
[[nodiscard]] bool advanceByOneDay(DateLists& lists);
