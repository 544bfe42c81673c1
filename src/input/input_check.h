// What is checked of the birth data before a chart is cast, and what the name box lets through.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "chart/birth_entry.h"

// Returns the message of the first failure: an empty name (blanks will do), or a date that does not exist.
std::optional<std::string_view> checkBirthEntry(const BirthEntry& entry);

// The letters as capitals A to Z, and the blanks; everything else is left out.
std::u16string filterName(std::u16string_view text);
