#include "input/name_filter.h"

FilteredName filterName(std::u16string_view text) {
    FilteredName result{{}, false};
    for (const char16_t character : text) {
        if (character >= u'a' && character <= u'z') {
            result.accepted += static_cast<char16_t>(character - 32);
        } else if ((character >= u'A' && character <= u'Z') || character == u' ') {
            result.accepted += character;
        } else {
            result.rejectedAny = true;
        }
    }
    return result;
}
