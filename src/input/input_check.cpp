#include "input/input_check.h"

std::optional<InputFailure> checkBirthEntry(const BirthEntry& entry) {
    if (entry.name.empty()) return InputFailure{"Please Enter Your Name !", InputField::txtName};
    if (entry.date.exists()) return std::nullopt;
    // Intentional: the doubled "of" in the message for the other months.
    const bool february = entry.date.month() == 2;
    return InputFailure{
        february ? "Please Enter Correct Date Of Birth !" : "Please Enter Correct Date Of of Birth !",
        InputField::cmbDate};
}
