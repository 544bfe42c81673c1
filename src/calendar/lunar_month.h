// The number of the Chinese lunar month in which a solar date of the years 1970 to 2012 falls.
#pragma once

#include <cstdint>

#include "calendar/picked_date.h"

// The lunar month of the last chart, 1..12; 0 until a look-up has found a number. One value for the whole run
// of the application and never reset: a date without a number leaves it as the chart before left it.
inline std::int16_t LunarMonth = 0;

// Looks up the date (days that the month does not have included) and writes its number to LunarMonth, or
// leaves LunarMonth alone where the date yields none. Reports nothing.
void FindLunarMonth(const PickedDate& date);
