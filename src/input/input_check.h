// The check of the birth data before a chart is cast.
#pragma once

#include <optional>
#include <string_view>

#include "chart/birth_entry.h"

enum class InputField { txtName, cmbDate };

// The message to show, and the field that then gets the focus.
struct InputFailure {
    std::string_view message;
    InputField field;
};

// Returns the first failure: the name is empty (blanks are enough), or the date does not exist.
std::optional<InputFailure> checkBirthEntry(const BirthEntry& entry);
