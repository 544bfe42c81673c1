// The interpretation texts of palaces, of stars, and of stars in palaces. Intentional: their spelling
// mistakes and trailing blanks.
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

// A star with texts, in the order in which an analysis lists them.
struct StarText {
    Star star;
    std::string_view general;
};
extern const std::array<StarText, starTextCount> starTexts;

// Each star of starTexts in each palace of palaceNames.
extern const std::array<std::array<std::string_view, palaceNames.size()>, starTextCount> starInPalaceTexts;
