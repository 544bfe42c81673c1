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
        const bool isSmall = character >= u'a' && character <= u'z';
        const auto capital = static_cast<char16_t>(isSmall ? character - u'a' + u'A' : character);
        if ((capital >= u'A' && capital <= u'Z') || capital == u' ') accepted += capital;
    }
    return accepted;
}
