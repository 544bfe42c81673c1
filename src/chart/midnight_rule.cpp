#include "chart/midnight_rule.h"

namespace {

constexpr int february = 1;
constexpr int december = 11;

// The year 1999 is kept on purpose as a year that does not turn, although the list runs to 2012; and 2012 is
// the list's end.
constexpr int turnlessYearPosition = 29;
constexpr int lastYearPosition = yearCount - 1;

// The last day of the month as the rule has it, as a list position.
int lastDayPosition(const DateLists& lists) {
    switch (lists.monthPosition) {
        case february:
            return (lists.year() & 3) == 0 ? 28 : 27;
        case 3:
        case 5:
        case 8:
        case 10:
            return 29;
        default:
            return 30;
    }
}

// A day that the month does not have moves on within the list, except in February, which always turns.
bool turnsMonth(const DateLists& lists) {
    if (lists.monthPosition == february) return lists.dayPosition >= lastDayPosition(lists);
    return lists.dayPosition == lastDayPosition(lists);
}

}  // namespace

bool advanceByOneDay(DateLists& lists) {
    if (!turnsMonth(lists)) {
        ++lists.dayPosition;
        return true;
    }
    if (lists.monthPosition == december) {
        const int year = lists.yearPosition;
        if (year == turnlessYearPosition || year == lastYearPosition) return false;
        ++lists.yearPosition;
    }
    lists.dayPosition = 0;
    lists.monthPosition = (lists.monthPosition + 1) % monthCount;
    return true;
}
