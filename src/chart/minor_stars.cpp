#include <span>

#include "chart/placement.h"

namespace {

// A star counted round the square: as many cells from `from` as the number of the double-hour or month.
struct CountedStar {
    Star star;
    int from;
    int direction;  // +1 forwards, -1 backwards
};

// By the double-hour.
constexpr std::array<CountedStar, 6> hourStars{{
    {Star::WenChang, 9, -1},
    {Star::WenQu, 1, +1},
    {Star::DiJie, 8, +1},
    {Star::DiKong, 10, -1},
    {Star::TaiFu, 3, +1},
    {Star::FengGao, -1, +1},
}};

// By the lunar month.
constexpr std::array<CountedStar, 4> monthStars{{
    {Star::ZuoFu, 1, +1},
    {Star::YouBi, 9, -1},
    {Star::TianYao, -2, +1},
    {Star::TianXing, 6, +1},
}};

// The cells of these stars, one row for each lunar month. Tian Yue's follow no formula.
constexpr std::array monthFlagStars{Star::JieShen, Star::TianWu, Star::TianYue, Star::YinSha};
constexpr std::array<std::array<int, monthFlagStars.size()>, 12> monthFlagCells{{
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
    Star from;
    int direction;
    int offset;
};
constexpr std::array<DayStar, 4> dayStars{{
    {Star::SanTai, Star::ZuoFu, +1, -1},      // Zuo Fu + r - 1
    {Star::BaZuo, Star::YouBi, -1, +1},       // You Bi - r + 1
    {Star::EnGuang, Star::WenChang, +1, -2},  // Wen Chang + r - 2
    {Star::TianGui, Star::WenQu, +1, -2},     // Wen Qu + r - 2
}};

void placeCounted(ChartModel& chart, std::span<const CountedStar> stars, int number) {
    for (const auto& [star, from, direction] : stars) chart.place(star, CellIndex{from + direction * number});
}

}  // namespace

void placeHourStars(ChartModel& chart) { placeCounted(chart, hourStars, chart.doubleHour); }

void placeMonthStars(ChartModel& chart) {
    placeCounted(chart, monthStars, chart.lunarMonth);
    if (chart.lunarMonth == 0) return;
    const auto& cells = monthFlagCells[static_cast<std::size_t>(chart.lunarMonth - 1)];
    for (std::size_t i = 0; i < monthFlagStars.size(); ++i)
        chart.place(monthFlagStars[i], CellIndex{cells[i]});
}

void placeDayStars(ChartModel& chart, int day) {
    const int remainder = day % 12;
    for (const auto& [star, from, direction, offset] : dayStars)
        chart.place(star, chart.cellOf(from) + (direction * remainder + offset));
}
