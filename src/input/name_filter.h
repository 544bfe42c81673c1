// The filter of the name box: names are capitals A to Z and blanks.
#pragma once

#include <string>
#include <string_view>

// The letters as capitals, and the blanks; everything else is left out.
std::u16string filterName(std::u16string_view text);
