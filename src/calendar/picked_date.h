// A date as a person picks it from the three date lists. Dates travel through the program as list positions;
// the texts and numbers follow from the positions.
#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <string_view>

inline constexpr int dayCount = 31;
inline constexpr int monthCount = 12;
inline constexpr int firstYear = 1970;
inline constexpr int yearCount = 43;

inline constexpr std::array<std::string_view, monthCount> monthNames{
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

struct PickedDate {
    int dayPosition = 0;    // 0..30, the day of the month less one
    int monthPosition = 0;  // 0..11, January = 0
    int yearPosition = 0;   // 0..42, the year less 1970

    constexpr int day() const { return dayPosition + 1; }            // 1..31
    constexpr int month() const { return monthPosition + 1; }        // 1..12
    constexpr int year() const { return firstYear + yearPosition; }  // 1970..2012

    // The English month name.
    constexpr std::string_view monthText() const {
        return monthNames.at(static_cast<std::size_t>(monthPosition));
    }

    // Whether the month has the day: the lists also let a person pick 30 February.
    constexpr bool exists() const { return (std::chrono::year{year()} / month() / day()).ok(); }

    friend constexpr bool operator==(const PickedDate&, const PickedDate&) = default;
};
