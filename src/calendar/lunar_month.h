// The number of the Chinese lunar month in which a solar date of the years 1970 to 2012 falls.
#pragma once

#include <cstdint>

#include "calendar/picked_date.h"

// The lunar month of the last chart, 1..12; 0 until a date had a number. Intentional: it is global and never
// reset, so a date without a number gets that of the previous chart.
inline std::int16_t LunarMonth = 0;

// Writes the number of the date to LunarMonth, or leaves that unchanged. The date need not exist.
void FindLunarMonth(const PickedDate& date);
