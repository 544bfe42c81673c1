// The texts of the core as the toolkit's.
#pragma once

#include <QString>
#include <string_view>

// Each byte is a character of Latin-1.
QString latin(std::string_view text);

// The same, with CR LF as the one line break that labels and text views know.
QString latinLines(std::string_view text);
