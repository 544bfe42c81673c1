// A date as a person picks it from the three date lists. Dates travel through the program as list positions;
// the texts and numbers follow from the positions.
#pragma once

#include <array>
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

    // The day of the month, 1..31. Nothing says that the month has such a day.
    constexpr int day() const { return dayPosition + 1; }

    // The English month name.
    constexpr std::string_view monthText() const {
        return monthNames.at(static_cast<std::size_t>(monthPosition));
    }

    // 1970..2012.
    constexpr int year() const { return firstYear + yearPosition; }

    // The days of the month, 28..31. Leap years are those divisible by 4, which is exact for these years.
    constexpr int monthLength() const {
        constexpr std::array<int, monthCount> lengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        const bool leapFebruary = monthPosition == 1 && year() % 4 == 0;
        return lengths.at(static_cast<std::size_t>(monthPosition)) + (leapFebruary ? 1 : 0);
    }

    friend constexpr bool operator==(const PickedDate&, const PickedDate&) = default;
};
