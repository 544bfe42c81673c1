// A piece of an analysis in one style.
#pragma once

#include <cstdint>
#include <string>

struct Rgb {
    std::uint8_t red, green, blue;
    friend constexpr bool operator==(const Rgb&, const Rgb&) = default;
};

// The colours of an analysis, which the windows use, too.
inline constexpr Rgb analysisBlue{13, 36, 166};
inline constexpr Rgb analysisBrown{101, 14, 14};
inline constexpr Rgb analysisRed{128, 0, 0};

struct TextStyle {
    bool bold;
    int size;  // in points
    Rgb colour;
    friend constexpr bool operator==(const TextStyle&, const TextStyle&) = default;
};

struct TextRun {
    std::string text;  // ASCII, CR LF as line break
    TextStyle style;
    friend bool operator==(const TextRun&, const TextRun&) = default;
};
