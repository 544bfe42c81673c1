// Charts one after another: what one leaves behind for the next.

#include <gtest/gtest.h>

#include <algorithm>

#include "calendar/lunar_month.h"
#include "chart_text.h"

namespace {

const BirthEntry ziWeiInYin = handCharts[0].entry, ziWeiInHai = handCharts[1].entry;

// The program as it has just been started.
class Chains : public testing::Test {
  protected:
    Chains() { LunarMonth = 0; }

    void next(BirthEntry entry) { ASSERT_EQ(generateChart(entry, chart_), Generation::done); }
    const ChartCell& cell(int index) const { return chart_.cell(CellIndex{index}); }

    // Counts the cells that are marked, and checks that the major stars are counted from the cell given.
    std::ptrdiff_t marksWithZiWeiIn(int index) const {
        EXPECT_EQ(chart_.cellOf(Star::ZiWei), CellIndex{index});
        EXPECT_EQ(chart_.cell(CellIndex{index} - 1).lblMajorStars, "Tian Ji");
        return std::ranges::count_if(chart_.cells, [](const ChartCell& each) {
            return each.lblEarthlyBranches.text().starts_with("Zi Wei\r\n");
        });
    }

    ChartModel chart_;
};

TEST_F(Chains, CaptionsAreReplacedButFlagsAndBranchesStayUntilTheCellsAreLoaded) {
    const ChartModel first = cast(ziWeiInYin), second = cast(ziWeiInHai);
    next(ziWeiInYin);
    next(ziWeiInHai);
    for (const CellIndex index : allCells) {
        for (const CaptionField& caption : captionFields) {
            const bool kept = caption.name == "lblEarthlyBranches" && index == CellIndex{0};
            const Caption expected = (kept ? first : second).cell(index).*caption.field;
            EXPECT_EQ(chart_.cell(index).*caption.field, expected) << caption.name;
        }
        for (const FlagField& flag : flagFields) {
            const bool expected = first.cell(index).*flag.field || second.cell(index).*flag.field;
            EXPECT_EQ(chart_.cell(index).*flag.field, expected) << flag.name;
        }
    }
    EXPECT_EQ(marksWithZiWeiIn(9), 2);
    chart_.loadCells();
    next(ziWeiInHai);
    for (const CellIndex index : allCells)
        EXPECT_EQ(cellLine(chart_, index), handCharts[1].cells[index.index()]);
}

TEST_F(Chains, AMarkedBranchIsNotFoundAgain) {
    next(ziWeiInYin);
    next(ziWeiInYin);
    EXPECT_EQ(cell(0).lblEarthlyBranches, "Zi Wei\r\nYin");
    EXPECT_EQ(marksWithZiWeiIn(0), 1);
    next(ziWeiInHai);
    next(ziWeiInYin);  // so the cell of the chart between stays
    EXPECT_EQ(marksWithZiWeiIn(9), 2);
    EXPECT_TRUE(cell(9).lblHuake);
}

TEST_F(Chains, A31stHasNoZiWeiOfItsOwn) {
    next(birth("31.3.1985"));
    EXPECT_EQ(marksWithZiWeiIn(0), 0);
    next(ziWeiInHai);
    next(birth("31.3.1985"));  // on the same cells
    EXPECT_EQ(marksWithZiWeiIn(9), 1);
    chart_.loadCells();
    next(birth("31.3.1985"));  // on fresh ones
    EXPECT_EQ(marksWithZiWeiIn(9), 1);
    EXPECT_EQ(cell(9).lblEarthlyBranches, "Zi Wei\r\nHai");
}

TEST_F(Chains, ADateWithoutALunarMonthCountsFromTheChartBefore) {
    next(birth("9.7.1975", 0, 30));
    EXPECT_EQ(chart_.lunarMonth, 0);
    EXPECT_EQ(chart_.lifePalace, CellIndex{11});
    EXPECT_EQ(chart_.bodyPalace, CellIndex{11});
    EXPECT_EQ(chart_.cellOf(Star::ZuoFu), CellIndex{1});
    EXPECT_EQ(chart_.cellOf(Star::TianYao), CellIndex{10});
    for (const ChartCell& each : chart_.cells) {
        EXPECT_FALSE(each.lblJieShen || each.lblTianWu || each.lblTianYue || each.lblYinSha);
    }
    next(birth("24.12.2003"));
    next(birth("9.7.1975"));
    EXPECT_EQ(chart_.lunarMonth, 12);
    next(birth("8.7.1975", 0, 0));  // midnight moves it into the gap
    EXPECT_EQ(chart_.lunarMonth, 12);
    next(birth("9.7.1975", 0, 0));  // and this one out of it
    EXPECT_EQ(chart_.lunarMonth, 6);
}

TEST_F(Chains, MidnightTurnsTheMonthWhereItEnds) {
    for (const auto& [from, to] : pairsOf("27.2.1987=28.2.1987 28.2.1987=1.3.1987 28.2.1988=29.2.1988 "
                                          "29.2.1988=1.3.1988 28.2.2000=29.2.2000 "
                                          "29.4.1985=30.4.1985 30.4.1985=1.5.1985 30.6.1985=1.7.1985 "
                                          "30.9.1985=1.10.1985 30.11.1985=1.12.1985 "
                                          "30.1.1985=31.1.1985 31.1.1985=1.2.1985 31.12.1998=1.1.1999 "
                                          "30.12.1999=31.12.1999 31.12.2011=1.1.2012")) {
        BirthEntry entry = birth(from, 0, 0);
        EXPECT_EQ(generateChart(entry, chart_), Generation::done);
        EXPECT_EQ(entry.date, dateOf(to)) << from;
    }
    LunarMonth = 7;
    for (const char* last : {"31.12.1999", "31.12.2012"}) {
        BirthEntry entry = birth(last, 0, 0);
        EXPECT_EQ(generateChart(entry, chart_), Generation::dateRefused);
        EXPECT_EQ(entry.date, dateOf(last));
        EXPECT_EQ(LunarMonth, 7);
    }
}

}  // namespace
