// What is checked of the birth data before a chart is cast.
#pragma once

#include <optional>
#include <string_view>

#include "chart/birth_entry.h"

enum class InputField { txtName, cmbDate };

// What the person is told, and the field that takes the focus then.
struct InputFailure {
    std::string_view message;
    InputField field;
};

// The first failure, or nothing: the name must not be empty (blanks are enough), and the date must exist.
std::optional<InputFailure> checkBirthEntry(const BirthEntry& entry);
