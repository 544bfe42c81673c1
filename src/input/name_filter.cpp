#include "input/name_filter.h"

std::u16string filterName(std::u16string_view text) {
    std::u16string accepted;
    for (const char16_t character : text) {
        if (character >= u'a' && character <= u'z') {
            accepted += static_cast<char16_t>(character - 32);
        } else if ((character >= u'A' && character <= u'Z') || character == u' ') {
            accepted += character;
        }
    }
    return accepted;
}
