// The entries of the five lists of the input form, in the order in which they are shown.
#pragma once

#include <string>
#include <vector>

inline constexpr int hourCount = 24;
inline constexpr int minuteCount = 60;

// Plain decimal numbers from first to last, without padding; the month names of the calendar.
std::vector<std::string> dateEntries();    // "1" .. "31"
std::vector<std::string> monthEntries();   // "January" .. "December"
std::vector<std::string> yearEntries();    // "1970" .. "2012"
std::vector<std::string> hourEntries();    // "0" .. "23"
std::vector<std::string> minuteEntries();  // "0" .. "59"
