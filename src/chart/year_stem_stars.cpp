#include "chart/year_stem_stars.h"

namespace {

// The cells of the year-stem stars, one row a last digit of the year. Kept on purpose: Qing Yang stands
// before Lu Cun and Tuo Luo after it, and Tian Kui and Tian Yue stand apart for Xin and for Bing and Ding.
struct StemCells {
    int lblLuCun;
    int lblQingYang;
    int lblTuoLuo;
    int lblTianKui;
    int lblTianYueTwo;
    int lblTianGuan;
    int lblTianFutwo;
};
// clang-format off
constexpr std::array<StemCells, 10> stemCells{{
    // LuCun QingYang TuoLuo TianKui TianYueTwo TianGuan TianFutwo
    {   6,       5,     7,     11,         5,       9,        4},  // 0 Geng
    {   7,       6,     8,      9,         7,       7,        3},  // 1 Xin
    {   9,       8,    10,      1,         3,       8,        4},  // 2 Ren
    {  10,       9,    11,      1,         3,       4,        3},  // 3 Gui
    {   0,      11,     1,     11,         5,       5,        7},  // 4 Jia
    {   1,       0,     2,     10,         6,       2,        6},  // 5 Yi
    {   3,       2,     4,      4,         0,       3,       10},  // 6 Bing
    {   4,       3,     5,      4,         0,       0,        9},  // 7 Ding
    {   3,       2,     4,     11,         5,       1,        1},  // 8 Wu
    {   4,       3,     5,     10,         6,       7,        0},  // 9 Ji
}};

// The stars that each transformation marks, one row a last digit of the year.
struct Transformed {
    Star huaLu;
    Star huaQuan;
    Star huake;
    Star huaJi;
};
constexpr std::array<Transformed, 10> transformations{{
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
    for (const StemCells& row : stemCells) {
        for (const int cell : {row.lblLuCun, row.lblQingYang, row.lblTuoLuo, row.lblTianKui,
                               row.lblTianYueTwo, row.lblTianGuan, row.lblTianFutwo}) {
            if (cell < 0 || cell >= cellCount) return false;
        }
        if (CellIndex{row.lblQingYang} != CellIndex{row.lblLuCun} - 1) return false;
        if (CellIndex{row.lblTuoLuo} != CellIndex{row.lblLuCun} + 1) return false;
    }
    return true;
}
static_assert(stemCellsAreSound());

}  // namespace

void raiseYearStemStars(ChartModel& chart) {
    const auto digit = static_cast<std::size_t>(chart.yearDigit);
    const StemCells& at = stemCells[digit];
    const Transformed& marked = transformations[digit];
    const auto raise = [&chart](bool ChartCell::*flag, int cell) {
        chart.cell(CellIndex{cell}).*flag = true;
    };
    const auto mark = [&chart](bool ChartCell::*flag, Star star) {
        chart.cell(chart.cellOf(star)).*flag = true;
    };

    raise(&ChartCell::lblLuCun, at.lblLuCun);
    raise(&ChartCell::lblQingYang, at.lblQingYang);
    raise(&ChartCell::lblTuoLuo, at.lblTuoLuo);
    raise(&ChartCell::lblTianKui, at.lblTianKui);
    raise(&ChartCell::lblTianYueTwo, at.lblTianYueTwo);
    mark(&ChartCell::lblHuaJi, marked.huaJi);
    mark(&ChartCell::lblHuake, marked.huake);
    mark(&ChartCell::lblHuaQuan, marked.huaQuan);
    mark(&ChartCell::lblHuaLu, marked.huaLu);
    raise(&ChartCell::lblTianGuan, at.lblTianGuan);
    raise(&ChartCell::lblTianFutwo, at.lblTianFutwo);
}
