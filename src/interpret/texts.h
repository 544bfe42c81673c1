// The interpretation texts: what the palaces stand for, what the stars mean, and what a star means in a
// palace. All are fixed English content; slips of spelling and trailing blanks in them are part of it.
#pragma once

#include <array>
#include <string_view>

#include "chart/chart_model.h"

inline constexpr std::size_t palaceTextCount = 12;
inline constexpr std::size_t starTextCount = 13;

extern const std::string_view introText;
extern const std::string_view bodyPalaceText;

// A palace by the name that stands in its cell.
struct PalaceText {
    std::string_view key;
    std::string_view heading;
    std::string_view description;
};
extern const std::array<PalaceText, palaceTextCount> palaceTexts;

// A star with texts, in the order in which an analysis takes them.
struct StarText {
    Star star;
    std::string_view heading;
    std::string_view general;
};
extern const std::array<StarText, starTextCount> starTexts;

// Each star of starTexts in each palace of palaceTexts.
extern const std::array<std::array<std::string_view, palaceTextCount>, starTextCount> starInPalaceTexts;
