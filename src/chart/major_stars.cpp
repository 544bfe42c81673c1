#include "chart/major_stars.h"

namespace {

struct MajorStar {
    Star star;
    Caption text;
    int steps;
};

// Steps backwards from Zi Wei.
constexpr std::array<MajorStar, 5> ziWeiGroup{{
    {Star::TianJi, "Tian Ji", 1},
    {Star::TaiYang, "Tai Yang", 3},
    {Star::WuQu, "Wu Qu", 4},
    {Star::TianTong, "Tian Tong", 5},
    {Star::LianZhen, "Lian Zhen", 8},
}};

// Steps forwards from Tian Fu.
constexpr std::array<MajorStar, 8> tianFuGroup{{
    {Star::TianFu, "Tian Fu", 0},
    {Star::TaiYin, "Tai Yin", 1},
    {Star::TanLang, "Tan Lang", 2},
    {Star::JuMen, "Ju Men", 3},
    {Star::TianXiang, "Tian Xiang", 4},
    {Star::TianLiang, "Tian Liang", 5},
    {Star::QiSha, "Qi Sha", 6},
    {Star::PoJun, "Po Jun", 10},
}};

// Tian Fu mirrors Zi Wei on the axis through "Yin" and "Shen"; those two cells mirror onto themselves.
constexpr CellIndex mirrored(CellIndex ziWei) { return CellIndex{-ziWei.value()}; }
static_assert(mirrored(CellIndex{0}) == CellIndex{0} && mirrored(CellIndex{6}) == CellIndex{6});
static_assert(mirrored(CellIndex{3}) == CellIndex{9});

}  // namespace

void placeMajorStars(ChartModel& chart) {
    for (const MajorStar& major : ziWeiGroup) {
        chart.place(major.star, &ChartCell::lblMajorStars, major.text, chart.ziWeiCell - major.steps);
    }
    const CellIndex tianFu = mirrored(chart.ziWeiCell);
    for (const MajorStar& major : tianFuGroup) {
        chart.place(major.star, &ChartCell::lblTianFu, major.text, tianFu + major.steps);
    }
}
