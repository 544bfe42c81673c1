// The birth data of the input form: the name as typed and the positions of the five lists.
#pragma once

#include <string>

#include "calendar/picked_date.h"

struct BirthEntry {
    std::u16string name;
    PickedDate date;
    int hourPosition = 0;    // 0..23, equal to the hour
    int minutePosition = 0;  // 0..59, equal to the minute
};
