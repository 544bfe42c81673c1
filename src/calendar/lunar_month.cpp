#include "calendar/lunar_month.h"

#include <algorithm>

#include "calendar/lunar_table.h"

namespace {

using lunar_table::Begin;
using lunar_table::Gap;
using lunar_table::Row;

// The number in force on the date, or 0 where the date yields none.
std::int16_t numberOn(const Row& row, int month, int day) {
    const auto holdsDate = [=](const Gap& gap) {
        return gap.month == month && gap.first <= day && day <= gap.last;
    };
    if (std::ranges::any_of(row.gaps, holdsDate)) return 0;
    std::int16_t number = 0;
    for (const Begin& begin : row.begins) {
        if (begin.number == 0 || begin.month > month || (begin.month == month && begin.day > day)) break;
        number = begin.number;
    }
    return number;
}

void findInYears(const PickedDate& date, int first, int last) {
    if (date.year() < first || date.year() > last) return;
    const Row& row = lunar_table::rows[static_cast<std::size_t>(date.yearPosition)];
    if (const auto number = numberOn(row, date.month(), date.day())) LunarMonth = number;
}

void FindLunarMonth1970To1979(const PickedDate& date) { findInYears(date, 1970, 1979); }
void FindLunarMonth1980To1989(const PickedDate& date) { findInYears(date, 1980, 1989); }
void FindLunarMonth1990To1999(const PickedDate& date) { findInYears(date, 1990, 1999); }
void FindLunarMonth2000To2010(const PickedDate& date) { findInYears(date, 2000, 2010); }
void FindLunarMonth2011To2012(const PickedDate& date) { findInYears(date, 2011, 2012); }

}  // namespace

void FindLunarMonth(const PickedDate& date) {
    FindLunarMonth1970To1979(date);
    FindLunarMonth1980To1989(date);
    FindLunarMonth1990To1999(date);
    FindLunarMonth2000To2010(date);
    FindLunarMonth2011To2012(date);
}
