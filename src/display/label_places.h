// Every label of the chart: its place and its look. Places are in twips at scale 1, from the top left corner
// of the cell or of the centre block.
#pragma once

#include <QColor>
#include <QLine>
#include <array>
#include <string_view>

#include "chart/chart_model.h"
#include "style/look.h"

// clang-format off
enum class LabelKind {
    quiet, ziWei, tianFuGroup, ziWeiGroup, palace, minor, transformation, body,  // in a cell
    name, heading, prompt, value, hint,                                          // in the centre and below
};
// clang-format on

// How a kind of label looks; the size is in pixels at scale 1.
struct LabelLook {
    LabelKind kind;
    int pixelSize;
    bool bold;
    QColor colour;
};

inline constexpr std::array<LabelLook, 13> labelLooks{{
    {LabelKind::quiet, 10, false, look::quiet},
    {LabelKind::ziWei, 10, true, look::green},  // a branch below Zi Wei: the major stars' colour
    {LabelKind::tianFuGroup, 12, true, look::blue},
    {LabelKind::ziWeiGroup, 12, true, look::green},
    {LabelKind::palace, 12, true, look::brown},
    {LabelKind::minor, 11, false, look::ink},
    {LabelKind::transformation, 11, false, look::red},
    {LabelKind::body, 10, true, look::brown},
    {LabelKind::name, 20, true, look::blue},
    {LabelKind::heading, 14, false, look::brown},
    {LabelKind::prompt, 11, false, look::quiet},
    {LabelKind::value, 12, true, look::blue},
    {LabelKind::hint, 11, false, look::brown},
}};

constexpr const LabelLook& lookOf(LabelKind kind) { return labelLooks[static_cast<std::size_t>(kind)]; }

// A label that every cell has. It is at least as wide as its longest text, which is given here unless the
// label shows only one star.
struct CellLabel {
    std::string_view name;
    int left, top, minimumWidth;
    LabelKind kind;
    std::string_view longestText = {};
};

// On the left of a cell stand branch, stem, major stars and palace; beside them the minor stars in three
// columns, with the transformations as a block at the bottom.
// clang-format off
inline constexpr std::array<CellLabel, 35> cellLabels{{
    {"lblEarthlyBranches",    60,    0, 600, LabelKind::quiet,          "Zi Wei\r\nChou"},
    {"lblPalaceSteam",        60,  360,   0, LabelKind::quiet,          "Water\r\nGeng"},
    {"lblTianFu",             60, 1380, 600, LabelKind::tianFuGroup,    "Tian Xiang"},
    {"lblMajorStars",         60, 1605, 975, LabelKind::ziWeiGroup,     "Lian Zhen"},
    {"lblPalace",             60, 1920,   0, LabelKind::palace,         "Life Palace"},

    {"lblTianKui",          1080,  120,   0, LabelKind::minor},
    {"lblTianYueTwo",       1080,  320,   0, LabelKind::minor},
    {"lblLuCun",            1080,  520,   0, LabelKind::minor},
    {"lblZuoFu",            1080,  720,   0, LabelKind::minor},
    {"lblYouBi",            1080,  920,   0, LabelKind::minor},
    {"lblTuoLuo",           1080, 1120,   0, LabelKind::minor},
    {"lblSanTai",           1200, 1320,   0, LabelKind::minor},
    {"lblBaZuo",            1200, 1520,   0, LabelKind::minor},

    {"lblWenChang",         1875,  120,   0, LabelKind::minor},
    {"lblTianFutwo",        1875,  320,   0, LabelKind::minor},
    {"lblTianGuan",         1875,  520,   0, LabelKind::minor},
    {"lblQingYang",         1875,  720,   0, LabelKind::minor},
    {"lblEnGuang",          1875,  920,   0, LabelKind::minor},
    {"lblTianXing",         1875, 1120,   0, LabelKind::minor},
    {"lblFengGao",          1875, 1320,   0, LabelKind::minor},
    {"lblTaiFu",            1875, 1520,   0, LabelKind::minor},

    {"lblWenQi",            2880,  120,   0, LabelKind::minor},
    {"lblTianYue",          2880,  320,   0, LabelKind::minor},
    {"lblTianYao",          2880,  520,   0, LabelKind::minor},
    {"lblTianWu",           2880,  720,   0, LabelKind::minor},
    {"lblTianGui",          2880,  920,   0, LabelKind::minor},
    {"lblJieShen",          2880, 1120,   0, LabelKind::minor},
    {"lblYinSha",           2880, 1320,   0, LabelKind::minor},
    {"lblDiJie",            2880, 1520,   0, LabelKind::minor},
    {"lblDiKong",           2880, 1720,   0, LabelKind::minor},

    {"lblHuaJi",            1200, 1720,   0, LabelKind::transformation},
    {"lblHuaQuan",          1875, 1720,   0, LabelKind::transformation},
    {"lblHuake",            1200, 1920,   0, LabelKind::transformation},
    {"lblHuaLu",            1875, 1920,   0, LabelKind::transformation},
    {"lblBody",             2880, 1920,   0, LabelKind::body,           "* Body"},
}};

// A label of the centre block: a fixed prompt or, where the prompt is empty, a value.
struct CentreLabel {
    std::string_view name;
    std::string_view prompt;
    int left, top, width, height;
    LabelKind kind;
    bool centred;
};

// The centre block reads as a title page: the person, then the values of the chart.
inline constexpr std::array<CentreLabel, 13> centreLabels{{
    {"lblName",                 "",                          300,  420, 6600, 450, LabelKind::name,    true},
    {"lblDateOfBirth",          "",                          300,  960, 6600, 330, LabelKind::heading, true},
    {"lblTimeOfBirth",          "",                          300, 1290, 6600, 330, LabelKind::heading, true},
    {"lblElementPrompt",        "Element",                   900, 2010, 3300, 270, LabelKind::prompt,  false},
    {"lblElement",              "",                         4350, 2010, 2400, 270, LabelKind::value,   false},
    {"lblYearPrompt",           "Year",                      900, 2340, 3300, 270, LabelKind::prompt,  false},
    {"lblYear",                 "",                         4350, 2340, 2400, 270, LabelKind::value,   false},
    {"lblMonthPrompt",          "Lunar Month",               900, 2670, 3300, 270, LabelKind::prompt,  false},
    {"lblMonth",                "",                         4350, 2670, 2400, 270, LabelKind::value,   false},
    {"lblLifePalaceatPrompt",   "Your Life Palace at",       900, 3000, 3300, 270, LabelKind::prompt,  false},
    {"lblLifePalaceat",         "",                         4350, 3000, 2400, 270, LabelKind::value,   false},
    {"lblBodyPalaceatPrompt",   "Your Body Palace at",       900, 3330, 3300, 270, LabelKind::prompt,  false},
    {"lblBodyPalaceat",         "",                         4350, 3330, 2400, 270, LabelKind::value,   false},
}};
// clang-format on

// The line below the time of birth.
inline constexpr QLine centreRule{1800, 1800, 5400, 1800};

// The index of the row with that name. A name that is not in the table does not compile.
template <class Table>
consteval std::size_t rowOf(const Table& table, std::string_view name) {
    std::size_t row = 0;
    while (table.at(row).name != name) ++row;
    return row;
}

consteval auto fieldsOfLabels() {
    std::array<CellField, cellLabels.size()> fields{};
    for (std::size_t i = 0; i < fields.size(); ++i)
        fields[i] = cellFields[rowOf(cellFields, cellLabels[i].name)];
    return fields;
}
inline constexpr auto labelFields = fieldsOfLabels();

constexpr std::string_view longestTextOf(std::size_t label) {
    const std::string_view named = cellLabels[label].longestText;
    return named.empty() ? labelFields[label].text.text() : named;
}

consteval bool tablesFit() {
    for (const CellField& field : cellFields) rowOf(cellLabels, field.name);
    for (std::size_t i = 0; i < labelLooks.size(); ++i) {
        if (labelLooks[i].kind != static_cast<LabelKind>(i)) return false;
    }
    return true;
}
static_assert(cellLabels.size() == cellFields.size() && tablesFit(),
              "each field of a cell has one label, each label one field, and each kind its look");
