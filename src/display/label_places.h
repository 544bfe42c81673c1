// Every label of the chart: where it stands and how it looks. Places are in twips (1/1440 inch) at the
// chart's scale 1, those in a cell counted from the cell's top left corner, those of the centre from the
// centre block's.
#pragma once

#include <QColor>
#include <array>
#include <string_view>

#include "chart/chart_model.h"
#include "style/look.h"

enum class LabelKind {
    quiet,
    ziWei,
    tianFuGroup,
    ziWeiGroup,
    palace,
    minor,
    transformation,
    body,
    name,
    heading,
    prompt,
    value,
    hint
};

// How a kind of label looks; the size is in pixels at scale 1.
struct LabelLook {
    LabelKind kind;
    int pixelSize;
    bool bold;
    QColor colour;
};

inline constexpr std::array<LabelLook, 13> labelLooks{{
    {LabelKind::quiet, 10, false, look::quiet},
    {LabelKind::ziWei, 10, true, look::green},  // a branch with Zi Wei above it leads like a major star
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

// A label that every cell has. The width is the least; a label is wider where its longest text asks for it.
struct CellLabel {
    std::string_view name;
    int left;
    int top;
    int minimumWidth;
    LabelKind kind;
    std::string_view longestText;
};

// The left side of a cell holds what a cell is: branch, stem, major stars, palace. The rest of it holds the
// minor stars in three columns of ten rows, and at the foot, in a block of their own, the transformations.
// clang-format off
inline constexpr std::array<CellLabel, 35> cellLabels{{
    {"lblEarthlyBranches",    60,    0, 600, LabelKind::quiet,          "Zi Wei\r\nChou"},
    {"lblPalaceSteam",        60,  360,   0, LabelKind::quiet,          "Water\r\nGeng"},
    {"lblTianFu",             60, 1380, 600, LabelKind::tianFuGroup,    "Tian Xiang"},
    {"lblMajorStars",         60, 1605, 975, LabelKind::ziWeiGroup,     "Lian Zhen"},
    {"lblPalace",             60, 1920,   0, LabelKind::palace,         "Life Palace"},

    {"lblTianKui",          1080,  120,   0, LabelKind::minor,          "Tian Kui"},
    {"lblTianYueTwo",       1080,  320,   0, LabelKind::minor,          "Tian Yue"},
    {"lblLuCun",            1080,  520,   0, LabelKind::minor,          "Lu Cun"},
    {"lblZuoFu",            1080,  720,   0, LabelKind::minor,          "Zuo Fu"},
    {"lblYouBi",            1080,  920,   0, LabelKind::minor,          "You Bi"},
    {"lblTuoLuo",           1080, 1120,   0, LabelKind::minor,          "Tuo Luo"},
    {"lblSanTai",           1200, 1320,   0, LabelKind::minor,          "San Tai"},
    {"lblBaZuo",            1200, 1520,   0, LabelKind::minor,          "Ba Zuo"},

    {"lblWenChang",         1875,  120,   0, LabelKind::minor,          "Wen Chang"},
    {"lblTianFutwo",        1875,  320,   0, LabelKind::minor,          "Tian Fu"},
    {"lblTianGuan",         1875,  520,   0, LabelKind::minor,          "Tian Guan"},
    {"lblQingYang",         1875,  720,   0, LabelKind::minor,          "Qing Yang"},
    {"lblEnGuang",          1875,  920,   0, LabelKind::minor,          "En Guang"},
    {"lblTianXing",         1875, 1120,   0, LabelKind::minor,          "Tian Xing"},
    {"lblFengGao",          1875, 1320,   0, LabelKind::minor,          "Feng Gao"},
    {"lblTaiFu",            1875, 1520,   0, LabelKind::minor,          "Tai Fu"},

    {"lblWenQi",            2880,  120,   0, LabelKind::minor,          "Wen Qu"},
    {"lblTianYue",          2880,  320,   0, LabelKind::minor,          "Tian Yue"},
    {"lblTianYao",          2880,  520,   0, LabelKind::minor,          "Tian Yao"},
    {"lblTianWu",           2880,  720,   0, LabelKind::minor,          "Tian Wu"},
    {"lblTianGui",          2880,  920,   0, LabelKind::minor,          "Tian Gui"},
    {"lblJieShen",          2880, 1120,   0, LabelKind::minor,          "Jie Shen"},
    {"lblYinSha",           2880, 1320,   0, LabelKind::minor,          "Yin Sha"},
    {"lblDiJie",            2880, 1520,   0, LabelKind::minor,          "Di Jie"},
    {"lblDiKong",           2880, 1720,   0, LabelKind::minor,          "Di Kong"},

    {"lblHuaJi",            1200, 1720,   0, LabelKind::transformation, "Hua Ji"},
    {"lblHuaQuan",          1875, 1720,   0, LabelKind::transformation, "Hua Quan"},
    {"lblHuake",            1200, 1920,   0, LabelKind::transformation, "Hua ke"},
    {"lblHuaLu",            1875, 1920,   0, LabelKind::transformation, "Hua Lu"},
    {"lblBody",             2880, 1920,   0, LabelKind::body,           "* Body"},
}};
// clang-format on

// A label of the centre block: one that is filled, or a fixed prompt, which has a text.
struct CentreLabel {
    std::string_view name;
    std::string_view prompt;
    int left;
    int top;
    int width;
    int height;
    LabelKind kind;
    bool centred;
};

// The centre block reads as a title page: who and when, then what the chart is counted from.
// clang-format off
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

// The line between who and when and the rest.
struct CentreRule {
    int left, top, width;
};
inline constexpr CentreRule centreRule{1800, 1800, 3600};

// The row of a table whose name this is; where there is none, the program does not compile.
template <class Table>
consteval std::size_t rowOf(const Table& table, std::string_view name) {
    std::size_t row = 0;
    while (table.at(row).name != name) ++row;
    return row;
}

// The label of each field of a cell, in the order of the fields' table.
template <class Fields>
consteval auto labelsOf(const Fields& fields) {
    std::array<std::size_t, std::tuple_size_v<Fields>> rows{};
    for (std::size_t i = 0; i < fields.size(); ++i) rows[i] = rowOf(cellLabels, fields[i].name);
    return rows;
}
inline constexpr auto captionLabels = labelsOf(captionFields);
inline constexpr auto flagLabels = labelsOf(flagFields);

consteval bool tablesFit() {
    std::array<int, cellLabels.size()> fieldsOfLabel{};
    for (const std::size_t label : captionLabels) ++fieldsOfLabel[label];
    for (const std::size_t label : flagLabels) ++fieldsOfLabel[label];
    for (const int fields : fieldsOfLabel) {
        if (fields != 1) return false;
    }
    for (std::size_t i = 0; i < labelLooks.size(); ++i) {
        if (labelLooks[i].kind != static_cast<LabelKind>(i)) return false;
    }
    return true;
}
static_assert(tablesFit(),
              "each field of a cell has one label, each label one field, and each kind its look");
