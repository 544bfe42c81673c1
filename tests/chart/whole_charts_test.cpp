// Whole charts, each field of each cell.

#include <gtest/gtest.h>

#include "calendar/lunar_month.h"
#include "chart_text.h"

namespace {

std::string values(const ChartModel& chart) {
    return std::to_string(chart.lunarMonth) + ' ' + std::to_string(chart.lifePalace.value()) + ' ' +
           std::to_string(chart.bodyPalace.value()) + ' ' + std::string{chart.lblElement.text()} + ' ' +
           std::string{chart.yearStem.text()};
}

TEST(WholeCharts, AgreeWithThoseWorkedOutByHand) {
    for (const HandChart& hand : handCharts) {
        const ChartModel chart = cast(hand.entry);
        for (const CellIndex cell : allCells) EXPECT_EQ(cellLine(chart, cell), hand.cells[cell.index()]);
        EXPECT_EQ(values(chart), hand.values);
        EXPECT_EQ(chart.lblLifePalaceat, branchNames[chart.lifePalace.index()]);
        EXPECT_EQ(chart.lblBodyPalaceat, branchNames[chart.bodyPalace.index()]);
        EXPECT_TRUE(chart.input.name == u"JOHN SMITH");
        EXPECT_EQ(chart.input.day, hand.entry.date.day());
        EXPECT_EQ(chart.input.month, hand.entry.date.monthText());
        EXPECT_EQ(chart.input.year, hand.entry.date.year());
    }
}

bool exists(const DateLists& date) {
    constexpr std::array<int, monthCount> lengths{31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool shortFebruary = date.monthPosition == 1 && date.year() % 4 != 0;
    return date.day() <= lengths[static_cast<std::size_t>(date.monthPosition)] - (shortFebruary ? 1 : 0);
}

// One chart for every date of the lists, one after another in one run of the program, at times that run
// through all double-hours. The digests, one for each last digit of the year, were taken from a second
// implementation of the rules, written on its own to check this one.
TEST(WholeCharts, AgreeWithASecondImplementationOnEveryDate) {
    std::array<std::uint64_t, 10> digests{};
    digests.fill(emptyDigest);
    LunarMonth = 0;
    ChartModel chart;
    int number = 0;
    for (int i = 0; i < yearCount * monthCount * dayCount; ++i) {
        const DateLists date{i % dayCount, i / dayCount % monthCount, i / dayCount / monthCount};
        if (!exists(date)) continue;
        BirthEntry entry{u"A", date, number * 7 % 24, number * 11 % 60};
        ++number;
        chart.loadCells();
        ASSERT_EQ(generateChart(entry, chart), Generation::done);
        std::string text = values(chart) + '\n';
        for (const CellIndex cell : allCells) text += cellLine(chart, cell) + '\n';
        std::uint64_t& sum = digests[static_cast<std::size_t>(date.year() % 10)];
        sum = digest(text, sum);
    }
    EXPECT_EQ(number, 15706);
    constexpr std::array<std::uint64_t, 10> expected{
        0xac332aaff3c0449f, 0x38efc4ffd4914971, 0x35970233f7dfa735, 0x0cc769c1e2296fcd, 0x732b59703bfd3017,
        0xae87cdbc8cfaacc1, 0xcb225c6581ab91f0, 0x01f35ec4f7743ae0, 0x522f197af54c6df6, 0x2ba7284a221a4c4f};
    EXPECT_EQ(digests, expected) << "the first is that of the years that end in 0";
}

}  // namespace
