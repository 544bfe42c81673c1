#include "chart/placement.h"

namespace {

constexpr std::array stemStars{Star::LuCun, Star::TianKui, Star::TianYueTwo, Star::TianGuan, Star::TianFutwo};

// The cells of these stars, one row for each last digit of the year. Intentional: Tian Kui and Tian Yue of
// Xin stand where the tradition has those of Bing and Ding, and the other way round.
// clang-format off
constexpr std::array<std::array<int, stemStars.size()>, 10> stemCells{{
    // Lu Cun, Tian Kui, Tian Yue, Tian Guan, Tian Fu
    { 6, 11,  5,  9,  4},  // 0 Geng
    { 7,  9,  7,  7,  3},  // 1 Xin
    { 9,  1,  3,  8,  4},  // 2 Ren
    {10,  1,  3,  4,  3},  // 3 Gui
    { 0, 11,  5,  5,  7},  // 4 Jia
    { 1, 10,  6,  2,  6},  // 5 Yi
    { 3,  4,  0,  3, 10},  // 6 Bing
    { 4,  4,  0,  0,  9},  // 7 Ding
    { 3, 11,  5,  1,  1},  // 8 Wu
    { 4, 10,  6,  7,  0},  // 9 Ji
}};

constexpr std::array transformations{Star::HuaLu, Star::HuaQuan, Star::Huake, Star::HuaJi};

// The stars that the transformations mark, one row for each last digit of the year.
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

}  // namespace

void placeYearStemStars(ChartModel& chart) {
    const auto digit = static_cast<std::size_t>(chart.yearDigit);
    for (std::size_t i = 0; i < stemStars.size(); ++i)
        chart.place(stemStars[i], CellIndex{stemCells[digit][i]});
    // Intentional: Qing Yang stands before Lu Cun and Tuo Luo after it, the reverse of the tradition.
    chart.place(Star::QingYang, chart.cellOf(Star::LuCun) - 1);
    chart.place(Star::TuoLuo, chart.cellOf(Star::LuCun) + 1);
    for (std::size_t i = 0; i < transformations.size(); ++i)
        chart.place(transformations[i], chart.cellOf(transformedStars[digit][i]));
}
