// The birth data of the input form: the name as typed and the positions of the five lists.
#pragma once

#include <string>

#include "calendar/picked_date.h"

inline constexpr int hourCount = 24;
inline constexpr int minuteCount = 60;

struct BirthEntry {
    std::u16string name;
    PickedDate date;
    int hourPosition = 0;    // 0..23, equal to the hour
    int minutePosition = 0;  // 0..59, equal to the minute
};
