#include "display/label_places.h"

#include <algorithm>
#include <cmath>

#include "style/look.h"

namespace {

constexpr int largestMinorPixels = 60;
constexpr int smallestMinorPixels = 6;
constexpr int scrolledMinorPixels = 7;  // a chart that scrolls in any case need not be as small as can be
constexpr double smallestLegibleDots = 10;

// The left side of a cell holds what a cell is: branch, stem, major stars, palace. The rest of it holds the
// minor stars in three columns of ten rows, and at the foot, in a block of their own, the transformations.
// clang-format off
constexpr std::array<CellLabel, 35> labels{{
    {"lblEarthlyBranches",    60,    0, 600, CellStyle::quiet,          "Zi Wei\r\nChou"},
    {"lblPalaceSteam",        60,  360,   0, CellStyle::quiet,          "Water\r\nGeng"},
    {"lblTianFu",             60, 1380, 600, CellStyle::tianFuGroup,    "Tian Xiang"},
    {"lblMajorStars",         60, 1605, 975, CellStyle::ziWeiGroup,     "Lian Zhen"},
    {"lblPalace",             60, 1920,   0, CellStyle::palace,         "Life Palace"},

    {"lblTianKui",          1080,  120,   0, CellStyle::minor,          "Tian Kui"},
    {"lblTianYueTwo",       1080,  320,   0, CellStyle::minor,          "Tian Yue"},
    {"lblLuCun",            1080,  520,   0, CellStyle::minor,          "Lu Cun"},
    {"lblZuoFu",            1080,  720,   0, CellStyle::minor,          "Zuo Fu"},
    {"lblYouBi",            1080,  920,   0, CellStyle::minor,          "You Bi"},
    {"lblTuoLuo",           1080, 1120,   0, CellStyle::minor,          "Tuo Luo"},
    {"lblSanTai",           1200, 1320,   0, CellStyle::minor,          "San Tai"},
    {"lblBaZuo",            1200, 1520,   0, CellStyle::minor,          "Ba Zuo"},

    {"lblWenChang",         1875,  120,   0, CellStyle::minor,          "Wen Chang"},
    {"lblTianFutwo",        1875,  320,   0, CellStyle::minor,          "Tian Fu"},
    {"lblTianGuan",         1875,  520,   0, CellStyle::minor,          "Tian Guan"},
    {"lblQingYang",         1875,  720,   0, CellStyle::minor,          "Qing Yang"},
    {"lblEnGuang",          1875,  920,   0, CellStyle::minor,          "En Guang"},
    {"lblTianXing",         1875, 1120,   0, CellStyle::minor,          "Tian Xing"},
    {"lblFengGao",          1875, 1320,   0, CellStyle::minor,          "Feng Gao"},
    {"lblTaiFu",            1875, 1520,   0, CellStyle::minor,          "Tai Fu"},

    {"lblWenQi",            2880,  120,   0, CellStyle::minor,          "Wen Qu"},
    {"lblTianYue",          2880,  320,   0, CellStyle::minor,          "Tian Yue"},
    {"lblTianYao",          2880,  520,   0, CellStyle::minor,          "Tian Yao"},
    {"lblTianWu",           2880,  720,   0, CellStyle::minor,          "Tian Wu"},
    {"lblTianGui",          2880,  920,   0, CellStyle::minor,          "Tian Gui"},
    {"lblJieShen",          2880, 1120,   0, CellStyle::minor,          "Jie Shen"},
    {"lblYinSha",           2880, 1320,   0, CellStyle::minor,          "Yin Sha"},
    {"lblDiJie",            2880, 1520,   0, CellStyle::minor,          "Di Jie"},
    {"lblDiKong",           2880, 1720,   0, CellStyle::minor,          "Di Kong"},

    {"lblHuaJi",            1200, 1720,   0, CellStyle::transformation, "Hua Ji"},
    {"lblHuaQuan",          1875, 1720,   0, CellStyle::transformation, "Hua Quan"},
    {"lblHuake",            1200, 1920,   0, CellStyle::transformation, "Hua ke"},
    {"lblHuaLu",            1875, 1920,   0, CellStyle::transformation, "Hua Lu"},
    {"lblBody",             2880, 1920,   0, CellStyle::body,           "* Body"},
}};

// The centre block reads as a title page: who and when, then what the chart is counted from.
constexpr std::array<CentreLabel, 13> centre{{
    {"lblName",                 "",                          300,  420, 6600, 450, CentreStyle::name,    true},
    {"lblDateOfBirth",          "",                          300,  960, 6600, 330, CentreStyle::heading, true},
    {"lblTimeOfBirth",          "",                          300, 1290, 6600, 330, CentreStyle::heading, true},
    {"lblElementPrompt",        "Element",                   900, 2010, 3300, 270, CentreStyle::prompt,  false},
    {"lblElement",              "",                         4350, 2010, 2400, 270, CentreStyle::value,   false},
    {"lblYearPrompt",           "Year",                      900, 2340, 3300, 270, CentreStyle::prompt,  false},
    {"lblYear",                 "",                         4350, 2340, 2400, 270, CentreStyle::value,   false},
    {"lblMonthPrompt",          "Lunar Month",               900, 2670, 3300, 270, CentreStyle::prompt,  false},
    {"lblMonth",                "",                         4350, 2670, 2400, 270, CentreStyle::value,   false},
    {"lblLifePalaceatPrompt",   "Your Life Palace at",       900, 3000, 3300, 270, CentreStyle::prompt,  false},
    {"lblLifePalaceat",         "",                         4350, 3000, 2400, 270, CentreStyle::value,   false},
    {"lblBodyPalaceatPrompt",   "Your Body Palace at",       900, 3330, 3300, 270, CentreStyle::prompt,  false},
    {"lblBodyPalaceat",         "",                         4350, 3330, 2400, 270, CentreStyle::value,   false},
}};
// clang-format on

}  // namespace

std::span<const CellLabel> cellLabels() { return labels; }
std::span<const CentreLabel> centreLabels() { return centre; }

CellIndex neighbour(CellIndex cell, int columnStep, int rowStep) {
    GridPlace place = gridPlace(cell);
    for (;;) {
        place = {place.column + columnStep, place.row + rowStep};
        if (place.column < 0 || place.column > 3 || place.row < 0 || place.row > 3) return cell;
        for (const CellIndex other : allCells) {
            if (gridPlace(other) == place) return other;
        }
    }
}

ChartScale ChartScale::largestFor(const QSize& room, double devicePixelRatio) {
    const int legible = static_cast<int>(std::ceil(smallestLegibleDots / devicePixelRatio));
    for (int pixels = largestMinorPixels; pixels >= std::max(legible, smallestMinorPixels); --pixels) {
        const QSize size = ChartScale{pixels}.chartSize();
        if (size.width() <= room.width() && size.height() <= room.height()) return ChartScale{pixels};
    }
    return ChartScale{std::max(legible, scrolledMinorPixels)};
}

int ChartScale::pixels(int twips) const {
    return static_cast<int>(
        std::ceil(twips * minorPixels_ / (look::twipsPerPixel * naturalScale.minorPixels())));
}

int ChartScale::fontPixels(int pixelSize) const {
    return pixelSize * minorPixels_ / naturalScale.minorPixels();
}

QRect ChartScale::cellFrame(CellIndex cell) const {
    const GridPlace place = gridPlace(cell);
    const QPoint topLeft{pixels(cellWidth * place.column), pixels(cellHeight * place.row)};
    const QPoint next{pixels(cellWidth * (place.column + 1)), pixels(cellHeight * (place.row + 1))};
    return {topLeft, next};  // one pixel into the neighbour
}

QRect ChartScale::centreFrame() const {
    return {QPoint{pixels(cellWidth), pixels(cellHeight)},
            QPoint{pixels(3 * cellWidth), pixels(3 * cellHeight)}};
}

QSize ChartScale::squareSize() const { return {pixels(4 * cellWidth) + 1, pixels(4 * cellHeight) + 1}; }

QSize ChartScale::chartSize() const {
    return squareSize() + QSize{2 * margin(), 2 * margin() + pixels(hintHeight)};
}
