// The check of the birth data before a chart is cast.
#pragma once

#include <optional>
#include <string_view>

#include "chart/birth_entry.h"

// Returns the message of the first failure: an empty name (blanks will do), or a date that does not exist.
std::optional<std::string_view> checkBirthEntry(const BirthEntry& entry);
