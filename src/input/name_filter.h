// The filter of the name box: names are capitals A to Z and blanks.
#pragma once

#include <string>
#include <string_view>

struct FilteredName {
    std::u16string accepted;  // letters in capitals, blanks as they are, everything else left out
    bool rejectedAny;         // whether anything was left out
};

FilteredName filterName(std::u16string_view text);
