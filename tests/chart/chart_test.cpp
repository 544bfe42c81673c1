// Charts: the rules, a whole chart, and what one chart leaves behind for the next.

#include <gtest/gtest.h>

#include "calendar/lunar_month.h"
#include "chart_text.h"

namespace {

// Where a star of a table moves, the sum of all that stands in the cells changes.
TEST(Rules, PlaceEachStarByDateAndHour) {
    std::uint32_t sum = 0;
    for (int i = 0; i < 30 * monthCount * 10; ++i) {
        const PickedDate date{i % 30, i / 30 % monthCount, 10 + i / 30 / monthCount};
        for (int hour = 0; hour < 24; hour += 2) {
            const ChartModel chart = cast({u"", date, hour, 30});
            for (const CellIndex cell : allCells) sum = sumOf(cellLine(chart, cell), sum);
        }
    }
    EXPECT_EQ(sum, 0xbb76b626U);
}

TEST(Rules, GiveEachDateItsLunarMonth) {
    std::string months;
    for (int i = 0; i < yearCount * monthCount * dayCount; ++i) {
        LunarMonth = 0;
        FindLunarMonth({i % dayCount, i / dayCount % monthCount, i / dayCount / monthCount});
        months += std::to_string(LunarMonth) + ' ';
    }
    EXPECT_EQ(sumOf(months), 0xe88e5f04U);
}

const BirthEntry first = handBirth, other = birth("24.12.2003");

// The program as it has just been started.
class Chains : public testing::Test {
  protected:
    Chains() { LunarMonth = 0; }

    void next(const BirthEntry& entry) { ASSERT_TRUE(generateChart(entry, chart_).has_value()); }

    ChartModel chart_;
};

TEST_F(Chains, AgreeWithTheHandChart) {
    chart_.starCells.fill(CellIndex{7});  // where no star of the last one stands
    next(handBirth);
    for (const CellIndex cell : allCells) EXPECT_EQ(cellLine(chart_, cell), handCells[cell.index()]);
    EXPECT_EQ(chart_.lblLifePalaceat, "Wei");
    EXPECT_EQ(chart_.lblBodyPalaceat, "You");
    for (const StarRow& row : starTable)
        EXPECT_TRUE(chart_.cell(chart_.cellOf(row.star)).holds(row.star)) << row.field.text.text();
    next(birth("29.2.1992", 0, 0));
    const auto& [name, year, month, day] = chart_.input;
    EXPECT_TRUE(name == u"JOHN SMITH" && year == 1992 && month == "February" && day == 29) << "as entered";
}

TEST_F(Chains, FlagsStayUntilTheCellsAreLoadedAndMarkedBranchesAreNotFoundAgain) {
    const ChartModel firstChart = cast(first);
    ChartModel both = cast(other);
    both.cells[0].lblEarthlyBranches = "Zi Wei\r\nYin";
    for (const auto& entry : {first, other, other}) next(entry);
    for (const CellIndex cell : allCells) {
        for (const CellField& field : cellFields)
            if (field.flag != nullptr) both.cell(cell).*field.flag |= firstChart.cell(cell).*field.flag;
        EXPECT_EQ(cellLine(chart_, cell), cellLine(both, cell));
    }
    for (const auto& entry : {first, birth("31.3.1985")}) {
        next(entry);  // so the cell of the chart before stays
        EXPECT_EQ(chart_.cellOf(Star::ZiWei), both.cellOf(Star::ZiWei));
    }
}

TEST_F(Chains, ADateWithoutALunarMonthCountsFromTheChartBefore) {
    next(birth("9.7.1975", 0, 30));
    EXPECT_EQ(chart_.cellOf(Star::ZuoFu), CellIndex{1});
    for (const ChartCell& each : chart_.cells) EXPECT_FALSE(each.lblJieShen || each.lblTianYue);
    for (const auto& [entry, month] : {std::pair{birth("24.12.2003"), 12},
                                       {birth("8.7.1975", 0, 0), 12},    // midnight moves it into the gap
                                       {birth("9.7.1975", 0, 0), 6}}) {  // and this one out of it
        next(entry);
        EXPECT_EQ(chart_.lunarMonth, month);
    }
}

TEST_F(Chains, MidnightTurnsTheMonthWhereItEnds) {
    constexpr std::pair<const char*, const char*> turns[]{
        {"28.2.1987", "1.3.1987"},  {"29.2.2000", "1.3.2000"},    {"30.4.1985", "1.5.1985"},
        {"31.12.1998", "1.1.1999"}, {"30.12.1999", "31.12.1999"}, {"31.12.2011", "1.1.2012"}};
    for (const auto& [from, to] : turns) {
        EXPECT_EQ(generateChart(birth(from, 0, 0), chart_), dateOf(to)) << from;
        EXPECT_EQ(chart_.yearDigit, dateOf(to).year() % 10);
        EXPECT_EQ(generateChart(birth(from, 0, 1), chart_), dateOf(from));
    }
    for (const char* last : {"31.12.1999", "31.12.2012"})
        EXPECT_EQ(generateChart(birth(last, 0, 0), chart_), std::nullopt);
}

}  // namespace
