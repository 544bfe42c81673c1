#include "chart/year_stem_stars.h"

#include <algorithm>

namespace {

struct FlagStar {
    Star star;
    bool ChartCell::*flag;
};

constexpr std::array<FlagStar, 7> stemStars{{
    {Star::LuCun, &ChartCell::lblLuCun},
    {Star::QingYang, &ChartCell::lblQingYang},
    {Star::TuoLuo, &ChartCell::lblTuoLuo},
    {Star::TianKui, &ChartCell::lblTianKui},
    {Star::TianYueTwo, &ChartCell::lblTianYueTwo},
    {Star::TianGuan, &ChartCell::lblTianGuan},
    {Star::TianFutwo, &ChartCell::lblTianFutwo},
}};

// The cells of these stars, one row a last digit of the year. Kept on purpose: Qing Yang stands before Lu Cun
// and Tuo Luo after it, and Tian Kui and Tian Yue stand apart for Xin and for Bing and Ding.
// clang-format off
constexpr std::array<std::array<int, stemStars.size()>, 10> stemCells{{
    // Lu Cun, Qing Yang, Tuo Luo, Tian Kui, Tian Yue, Tian Guan, Tian Fu
    { 6,  5,  7, 11,  5,  9,  4},  // 0 Geng
    { 7,  6,  8,  9,  7,  7,  3},  // 1 Xin
    { 9,  8, 10,  1,  3,  8,  4},  // 2 Ren
    {10,  9, 11,  1,  3,  4,  3},  // 3 Gui
    { 0, 11,  1, 11,  5,  5,  7},  // 4 Jia
    { 1,  0,  2, 10,  6,  2,  6},  // 5 Yi
    { 3,  2,  4,  4,  0,  3, 10},  // 6 Bing
    { 4,  3,  5,  4,  0,  0,  9},  // 7 Ding
    { 3,  2,  4, 11,  5,  1,  1},  // 8 Wu
    { 4,  3,  5, 10,  6,  7,  0},  // 9 Ji
}};
// clang-format on

constexpr std::array<FlagStar, 4> transformations{{
    {Star::HuaLu, &ChartCell::lblHuaLu},
    {Star::HuaQuan, &ChartCell::lblHuaQuan},
    {Star::Huake, &ChartCell::lblHuake},
    {Star::HuaJi, &ChartCell::lblHuaJi},
}};

// The stars that the transformations mark, one row a last digit of the year.
// clang-format off
constexpr std::array<std::array<Star, transformations.size()>, 10> transformedStars{{
    // Hua Lu         Hua Quan         Hua ke           Hua Ji
    {Star::TaiYang,   Star::WuQu,      Star::TianTong,  Star::TaiYin},  // 0 Geng
    {Star::JuMen,     Star::TaiYang,   Star::WenQu,     Star::WenChang},  // 1 Xin
    {Star::TianLiang, Star::ZiWei,     Star::ZuoFu,     Star::WuQu},  // 2 Ren
    {Star::PoJun,     Star::JuMen,     Star::TaiYin,    Star::TanLang},  // 3 Gui
    {Star::LianZhen,  Star::PoJun,     Star::WuQu,      Star::TaiYang},  // 4 Jia
    {Star::TianJi,    Star::TianLiang, Star::ZiWei,     Star::TaiYin},  // 5 Yi
    {Star::TianTong,  Star::TianJi,    Star::WenChang,  Star::LianZhen},  // 6 Bing
    {Star::TaiYin,    Star::TianTong,  Star::TianJi,    Star::JuMen},  // 7 Ding
    {Star::TanLang,   Star::TaiYin,    Star::YouBi,     Star::TianJi},  // 8 Wu
    {Star::WuQu,      Star::TanLang,   Star::TianLiang, Star::WenQu},  // 9 Ji
}};
// clang-format on

constexpr bool stemCellsAreSound() {
    for (const auto& row : stemCells) {
        if (std::ranges::min(row) < 0 || std::ranges::max(row) >= cellCount) return false;
        const auto [luCun, qingYang, tuoLuo, tianKui, tianYue, tianGuan, tianFu] = row;
        if (CellIndex{qingYang} != CellIndex{luCun} - 1) return false;
        if (CellIndex{tuoLuo} != CellIndex{luCun} + 1) return false;
    }
    return true;
}
static_assert(stemCellsAreSound());

}  // namespace

void placeYearStemStars(ChartModel& chart) {
    const auto digit = static_cast<std::size_t>(chart.yearDigit);
    for (std::size_t i = 0; i < stemStars.size(); ++i) {
        chart.place(stemStars[i].star, stemStars[i].flag, CellIndex{stemCells[digit][i]});
    }
    for (std::size_t i = 0; i < transformations.size(); ++i) {
        const CellIndex marked = chart.cellOf(transformedStars[digit][i]);
        chart.place(transformations[i].star, transformations[i].flag, marked);
    }
}
