#include "chart/placement.h"

namespace {

struct MajorStar {
    Star star;
    int steps;
};

// Steps backwards from Zi Wei.
constexpr std::array<MajorStar, 5> ziWeiGroup{{
    {Star::TianJi, 1},
    {Star::TaiYang, 3},
    {Star::WuQu, 4},
    {Star::TianTong, 5},
    {Star::LianZhen, 8},
}};

// Steps forwards from Tian Fu.
constexpr std::array<MajorStar, 8> tianFuGroup{{
    {Star::TianFu, 0},
    {Star::TaiYin, 1},
    {Star::TanLang, 2},
    {Star::JuMen, 3},
    {Star::TianXiang, 4},
    {Star::TianLiang, 5},
    {Star::QiSha, 6},
    {Star::PoJun, 10},
}};

// Tian Fu mirrors Zi Wei on the axis through "Yin" and "Shen"; those two cells mirror onto themselves.
constexpr CellIndex mirrored(CellIndex ziWei) { return CellIndex{-ziWei.value()}; }
static_assert(mirrored(CellIndex{0}) == CellIndex{0} && mirrored(CellIndex{6}) == CellIndex{6});
static_assert(mirrored(CellIndex{3}) == CellIndex{9});

}  // namespace

void placeMajorStars(ChartModel& chart) {
    const CellIndex ziWei = chart.cellOf(Star::ZiWei);
    for (const auto& [star, steps] : ziWeiGroup) chart.place(star, ziWei - steps);
    for (const auto& [star, steps] : tianFuGroup) chart.place(star, mirrored(ziWei) + steps);
}
