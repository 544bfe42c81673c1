#include "chart/placement.h"

namespace {

// The palace stems, beginning with Bing, as the Five Tigers rule counts them from the cell "Yin".
constexpr std::array<Caption, 10> stemNames{"Bing", "Ding", "Wu",  "Ji",  "Geng",
                                            "Xin",  "Ren",  "Gui", "Jia", "Yi"};

// By the last digit of the year, 0 to 9: the year's stem, and the stem of cell 0 as an index into stemNames.
constexpr std::array<Caption, 10> yearStems{"Geng", "Xin",  "Ren",  "Gui", "Jia",
                                            "Yi",   "Bing", "Ding", "Wu",  "Ji"};
constexpr std::array<int, 10> firstPalaceStems{2, 4, 6, 8, 0, 2, 4, 6, 8, 0};

// The bureau's element, by the pair of cells that holds the Life Palace and by the year's last digit; the
// digits 5 to 9 repeat the columns of 0 to 4.
// clang-format off
constexpr std::array<std::array<Caption, 5>, 6> elements{{
    // 0 or 5  1 or 6   2 or 7   3 or 8   4 or 9
    {"Earth", "Wood",  "Metal", "Water", "Fire"},   // Yin, Mao
    {"Metal", "Water", "Fire",  "Earth", "Wood"},   // Chen, Si
    {"Wood",  "Metal", "Water", "Fire",  "Earth"},  // Wu, Wei
    {"Water", "Fire",  "Earth", "Wood",  "Metal"},  // Shen, You
    {"Earth", "Wood",  "Metal", "Water", "Fire"},   // Xu, Hai
    {"Fire",  "Earth", "Wood",  "Metal", "Water"},  // Zi, Chou
}};
// clang-format on

}  // namespace

void placeLifePalace(ChartModel& chart) {
    chart.lifePalace = CellIndex{chart.lunarMonth - chart.doubleHour};
    for (int k = 0; k < cellCount; ++k)
        chart.cell(chart.lifePalace - k).lblPalace = palaceNames[static_cast<std::size_t>(k)];
    chart.lblLifePalaceat = branchNames[chart.lifePalace.index()];
}

void placeBodyPalace(ChartModel& chart) {
    chart.bodyPalace = CellIndex{chart.lunarMonth + chart.doubleHour - 2};
    chart.cell(chart.bodyPalace).lblBody = "* Body";
    chart.lblBodyPalaceat = branchNames[chart.bodyPalace.index()];
}

void placePalaceStems(ChartModel& chart) {
    const auto digit = static_cast<std::size_t>(chart.yearDigit);
    chart.yearStem = yearStems[digit];
    for (const CellIndex cell : allCells) {
        const auto number = static_cast<std::size_t>(firstPalaceStems[digit] + cell.value()) % 10;
        chart.cell(cell).lblPalaceSteam = stemNames[number];
    }
}

void placeElement(ChartModel& chart) {
    chart.lblElement = elements[chart.lifePalace.index() / 2][static_cast<std::size_t>(chart.yearDigit % 5)];
    Caption& stem = chart.cell(chart.lifePalace).lblPalaceSteam;
    stem = stacked(chart.lblElement, stem);
}
