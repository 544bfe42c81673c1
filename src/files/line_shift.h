// The shift that every line of a chart file passes through, so that the file is not plain text. An encoded
// line holds no code below 85, and so no line end either.
#pragma once

#include <string>
#include <string_view>

// Each code plus 85; codes of 171 and more have no shifted code and are left out.
std::string EncodeLine(std::string_view text);

// Each code less 85; codes below 85 are left out.
std::string DecodeLine(std::string_view text);
