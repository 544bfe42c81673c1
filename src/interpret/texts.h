// The interpretation texts: what the palaces stand for, what the stars mean, and what a star means in a
// palace. All are fixed English content; slips of spelling and trailing blanks in them are part of it.
#pragma once

#include <array>
#include <string_view>

#include "chart/chart_model.h"

inline constexpr std::size_t starTextCount = 13;

extern const std::string_view introText;
extern const std::string_view bodyPalaceText;

// A palace, in the order of palaceNames.
struct PalaceText {
    std::string_view heading;
    std::string_view description;
};
extern const std::array<PalaceText, palaceNames.size()> palaceTexts;

// A star with texts, in the order in which an analysis takes them.
struct StarText {
    Star star;
    std::string_view general;
};
extern const std::array<StarText, starTextCount> starTexts;

// Each star of starTexts in each palace of palaceNames.
extern const std::array<std::array<std::string_view, palaceNames.size()>, starTextCount> starInPalaceTexts;
