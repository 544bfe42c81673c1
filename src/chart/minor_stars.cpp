#include "chart/minor_stars.h"

#include <span>

namespace {

// A star counted round the square: its cell is `from` plus the number of the hour or month, or minus it.
struct CountedStar {
    Star star;
    Caption text;
    Caption ChartCell::*field;
    int from;
    int direction;
};

// By the double-hour h.
constexpr std::array<CountedStar, 6> hourStars{{
    {Star::WenChang, "Wen Chang", &ChartCell::lblWenChang, 9, -1},  //  9 - h
    {Star::WenQu, "Wen Qu", &ChartCell::lblWenQi, 1, +1},           //  h + 1
    {Star::DiJie, "Di Jie", &ChartCell::lblDiJie, 8, +1},           //  h + 8
    {Star::DiKong, "Di Kong", &ChartCell::lblDiKong, 10, -1},       // 10 - h
    {Star::TaiFu, "Tai Fu", &ChartCell::lblTaiFu, 3, +1},           //  h + 3
    {Star::FengGao, "Feng Gao", &ChartCell::lblFengGao, -1, +1},    //  h - 1
}};

// By the lunar month m.
constexpr std::array<CountedStar, 4> monthStars{{
    {Star::ZuoFu, "Zuo Fu", &ChartCell::lblZuoFu, 1, +1},           // m + 1
    {Star::YouBi, "You Bi", &ChartCell::lblYouBi, 9, -1},           // 9 - m
    {Star::TianYao, "Tian Yao", &ChartCell::lblTianYao, -2, +1},    // m - 2
    {Star::TianXing, "Tian Xing", &ChartCell::lblTianXing, 6, +1},  // m + 6
}};

// The cells of the month stars that are flags, for the months 1 to 12. Tian Yue follows no rule.
struct MonthFlags {
    int jieShen;
    int tianWu;
    int tianYue;
    int yinSha;
};
constexpr std::array<MonthFlags, 12> monthFlags{{
    // Jie Shen, Tian Wu, Tian Yue, Yin Sha
    {6, 3, 8, 0},   // 1
    {6, 6, 3, 10},  // 2
    {8, 0, 2, 8},   // 3
    {8, 9, 0, 6},   // 4
    {10, 3, 5, 4},  // 5
    {10, 6, 1, 2},  // 6
    {0, 0, 9, 0},   // 7
    {0, 9, 5, 10},  // 8
    {2, 3, 0, 8},   // 9
    {2, 6, 4, 6},   // 10
    {4, 0, 8, 4},   // 11
    {4, 9, 0, 2},   // 12
}};

// A star counted from another star's cell by the day's remainder r = day mod 12.
struct DayStar {
    Star star;
    Caption text;
    Caption ChartCell::*field;
    Star from;
    int direction;
    int offset;
};
constexpr std::array<DayStar, 4> dayStars{{
    {Star::SanTai, "San Tai", &ChartCell::lblSanTai, Star::ZuoFu, +1, -1},        // Zuo Fu + r - 1
    {Star::BaZuo, "Ba Zuo", &ChartCell::lblBaZuo, Star::YouBi, -1, +1},           // You Bi - r + 1
    {Star::EnGuang, "En Guang", &ChartCell::lblEnGuang, Star::WenChang, +1, -2},  // Wen Chang + r - 2
    {Star::TianGui, "Tian Gui", &ChartCell::lblTianGui, Star::WenQu, +1, -2},     // Wen Qu + r - 2
}};

void placeCounted(ChartModel& chart, std::span<const CountedStar> stars, int number) {
    for (const CountedStar& star : stars) {
        chart.place(star.star, star.field, star.text, CellIndex{star.from + star.direction * number});
    }
}

}  // namespace

void placeHourStars(ChartModel& chart) { placeCounted(chart, hourStars, chart.doubleHour); }

void placeMonthStars(ChartModel& chart) {
    placeCounted(chart, monthStars, chart.lunarMonth);
    if (chart.lunarMonth == 0) return;
    const MonthFlags& cells = monthFlags[static_cast<std::size_t>(chart.lunarMonth - 1)];
    chart.place(Star::JieShen, &ChartCell::lblJieShen, CellIndex{cells.jieShen});
    chart.place(Star::TianWu, &ChartCell::lblTianWu, CellIndex{cells.tianWu});
    chart.place(Star::TianYue, &ChartCell::lblTianYue, CellIndex{cells.tianYue});
    chart.place(Star::YinSha, &ChartCell::lblYinSha, CellIndex{cells.yinSha});
}

void placeDayStars(ChartModel& chart, int day) {
    const int remainder = day % 12;
    for (const DayStar& star : dayStars) {
        const CellIndex where = chart.cellOf(star.from) + (star.direction * remainder + star.offset);
        chart.place(star.star, star.field, star.text, where);
    }
}
