#include "calendar/lunar_month.h"

#include "calendar/lunar_table.h"

namespace {

using lunar_table::Begin;
using lunar_table::Gap;
using lunar_table::Row;

bool isGap(const Row& row, int month, int day) {
    for (const Gap& gap : row.gaps) {
        if (gap.month == month && gap.first <= day && day <= gap.last) return true;
    }
    return false;
}

// The number in force on the date, or 0 where the date yields none.
std::int16_t numberOn(const Row& row, int month, int day) {
    if (isGap(row, month, day)) return 0;
    for (const auto& beyond : lunar_table::beyondFebruary) {
        if (beyond.year == row.year && month == lunar_table::Feb && day >= beyond.firstDay)
            return beyond.number;
    }
    std::int16_t number = 0;
    for (const Begin& begin : row.begins) {
        if (begin.number == 0 || begin.month > month || (begin.month == month && begin.day > day)) break;
        number = begin.number;
    }
    return number;
}

void writeNumber(const DateLists& lists, int yearPosition) {
    const Row& row = lunar_table::rows[static_cast<std::size_t>(yearPosition)];
    if (const auto number = numberOn(row, lists.monthPosition + 1, lists.day())) LunarMonth = number;
}

void findInBlock(const DateLists& lists, int firstPosition, int lastPosition) {
    if (lists.yearPosition >= firstPosition && lists.yearPosition <= lastPosition) {
        writeNumber(lists, lists.yearPosition);
    }
}

void FindLunarMonth1970To1979(const DateLists& lists) { findInBlock(lists, 0, 9); }
void FindLunarMonth1980To1989(const DateLists& lists) { findInBlock(lists, 10, 19); }
void FindLunarMonth1990To1999(const DateLists& lists) { findInBlock(lists, 20, 29); }
void FindLunarMonth2000To2010(const DateLists& lists) { findInBlock(lists, 30, 40); }

// The last block goes by the number that the year list shows, not by its position.
void FindLunarMonth2011To2012(const DateLists& lists) {
    if (lists.year() == 2011) {
        writeNumber(lists, 41);
    } else if (lists.year() == 2012) {
        writeNumber(lists, 42);
    }
}

}  // namespace

void FindLunarMonth(const DateLists& lists) {
    FindLunarMonth1970To1979(lists);
    FindLunarMonth1980To1989(lists);
    FindLunarMonth1990To1999(lists);
    FindLunarMonth2000To2010(lists);
    FindLunarMonth2011To2012(lists);
}
