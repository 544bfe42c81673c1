#include <algorithm>

#include "chart/placement.h"

namespace {

constexpr std::array<Caption, 5> elementNames{"Water", "Wood", "Metal", "Earth", "Fire"};

// Zi Wei's branch by the day, 1 to 30, and the element. Intentional: day 26 of Earth is Chen, not Hai.
// clang-format off
constexpr std::array<std::array<Caption, elementNames.size()>, 30> ziWeiBranches{{
    // Water  Wood    Metal   Earth   Fire
    {"Chou", "Chen", "Hai",  "Wu",   "You"},  // 1
    {"Yin",  "Chou", "Chen", "Hai",  "Wu"},  // 2
    {"Yin",  "Yin",  "Chou", "Chen", "Hai"},  // 3
    {"Mao",  "Si",   "Yin",  "Chou", "Chen"},  // 4
    {"Mao",  "Yin",  "Zi",   "Yin",  "Chou"},  // 5
    {"Chen", "Mao",  "Si",   "Wei",  "Yin"},  // 6
    {"Chen", "Wu",   "Yin",  "Zi",   "Xu"},  // 7
    {"Si",   "Mao",  "Mao",  "Si",   "Wei"},  // 8
    {"Si",   "Chen", "Chou", "Yin",  "Zi"},  // 9
    {"Wu",   "Wei",  "Wu",   "Mao",  "Si"},  // 10
    {"Wu",   "Chen", "Mao",  "Shen", "Yin"},  // 11
    {"Wei",  "Si",   "Chen", "Chou", "Mao"},  // 12
    {"Wei",  "Shen", "Yin",  "Wu",   "Hai"},  // 13
    {"Shen", "Si",   "Wei",  "Mao",  "Shen"},  // 14
    {"Shen", "Wu",   "Chen", "Chen", "Chou"},  // 15
    {"You",  "You",  "Si",   "You",  "Wu"},  // 16
    {"You",  "Wu",   "Mao",  "Yin",  "Mao"},  // 17
    {"Xu",   "Wei",  "Shen", "Wei",  "Chen"},  // 18
    {"Xu",   "Xu",   "Si",   "Chen", "Zi"},  // 19
    {"Hai",  "Wei",  "Wu",   "Si",   "You"},  // 20
    {"Hai",  "Shen", "Chen", "Xu",   "Yin"},  // 21
    {"Zi",   "Hai",  "You",  "Mao",  "Wei"},  // 22
    {"Zi",   "Shen", "Wu",   "Shen", "Chen"},  // 23
    {"Chou", "You",  "Wei",  "Si",   "Si"},  // 24
    {"Chou", "Zi",   "Si",   "Wu",   "Chou"},  // 25
    {"Yin",  "You",  "Xu",   "Chen", "Xu"},  // 26
    {"Yin",  "Xu",   "Wei",  "Chen", "Mao"},  // 27
    {"Mao",  "Chou", "Shen", "You",  "Shen"},  // 28
    {"Mao",  "Xu",   "Wu",   "Wu",   "Si"},  // 29
    {"Chen", "Hai",  "Hai",  "Wei",  "Wu"},  // 30
}};
// clang-format on

}  // namespace

void placeZiWei(ChartModel& chart, int dayPosition) {
    const auto element = std::ranges::find(elementNames, chart.lblElement) - elementNames.begin();
    const auto day = static_cast<std::size_t>(dayPosition);
    if (day < ziWeiBranches.size())
        chart.ziWeiBranch = ziWeiBranches[day].at(static_cast<std::size_t>(element));
    for (const CellIndex cell : allCells) {
        if (chart.cell(cell).lblEarthlyBranches == chart.ziWeiBranch) chart.place(Star::ZiWei, cell);
    }
}
