#include "input/input_check.h"

std::optional<std::string_view> checkBirthEntry(const BirthEntry& entry) {
    if (entry.name.empty()) return "Please Enter Your Name !";
    if (entry.date.exists()) return std::nullopt;
    // Intentional: the doubled "of" in the message for the other months.
    return entry.date.month() == 2 ? "Please Enter Correct Date Of Birth !"
                                   : "Please Enter Correct Date Of of Birth !";
}
