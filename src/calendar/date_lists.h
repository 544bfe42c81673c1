// The three date lists of the input form and what is selected in them. Dates travel through the program as
// list positions, because that is what a person picks; the texts and numbers follow from the positions.
#pragma once

#include <array>
#include <string_view>

inline constexpr int dayCount = 31;
inline constexpr int monthCount = 12;
inline constexpr int firstYear = 1970;
inline constexpr int yearCount = 43;

inline constexpr std::array<std::string_view, monthCount> monthNames{
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

// What is selected in the lists cmbDate, cmbMonth and cmbYear.
struct DateLists {
    int dayPosition = 0;    // 0..30, the day of the month less one
    int monthPosition = 0;  // 0..11, January = 0
    int yearPosition = 0;   // 0..42, the year less 1970

    // The day of the month as its list shows it, 1..31. Nothing says that the month has such a day.
    constexpr int day() const { return dayPosition + 1; }

    // The English month name as its list shows it.
    constexpr std::string_view monthText() const {
        return monthNames.at(static_cast<std::size_t>(monthPosition));
    }

    // The number that the year list's text reads as, 1970..2012.
    constexpr int year() const { return firstYear + yearPosition; }

    friend constexpr bool operator==(const DateLists&, const DateLists&) = default;
};
