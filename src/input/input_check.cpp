#include "input/input_check.h"

std::optional<std::string_view> checkBirthEntry(const BirthEntry& entry) {
    if (entry.name.empty()) return "Please Enter Your Name !";
    if (entry.date.exists()) return std::nullopt;
    // Intentional: the doubled "of" in the message for the other months.
    return entry.date.month() == 2 ? "Please Enter Correct Date Of Birth !"
                                   : "Please Enter Correct Date Of of Birth !";
}

std::u16string filterName(std::u16string_view text) {
    std::u16string accepted;
    for (const char16_t character : text) {
        if (character >= u'a' && character <= u'z') {
            accepted += static_cast<char16_t>(character - u'a' + u'A');
        } else if ((character >= u'A' && character <= u'Z') || character == u' ') {
            accepted += character;
        }
    }
    return accepted;
}
