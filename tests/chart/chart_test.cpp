// Charts: the rules beside the tradition's own, a whole chart, and what one leaves behind for the next.

#include <gtest/gtest.h>

#include "calendar/lunar_month.h"
#include "chart_text.h"

namespace {

// The tradition's verses. Where the program departs from them on purpose (Tian Kui and Tian Yue of Xin, Bing
// and Ding), its own reading stands here.
enum Branch { Yin, Mao, Chen, Si, Wu, Wei, Shen, You, Xu, Hai, Zi, Chou };
using enum Star;

constexpr std::pair<Star, std::array<Branch, 12>> byMonth[]{
    {JieShen, {Shen, Shen, Xu, Xu, Zi, Zi, Yin, Yin, Chen, Chen, Wu, Wu}},
    {TianWu, {Si, Shen, Yin, Hai, Si, Shen, Yin, Hai, Si, Shen, Yin, Hai}},
    {TianYue, {Xu, Si, Chen, Yin, Wei, Mao, Hai, Wei, Yin, Wu, Xu, Yin}},
    {YinSha, {Yin, Zi, Xu, Shen, Wu, Chen, Yin, Zi, Xu, Shen, Wu, Chen}}};
constexpr std::pair<Star, std::array<Branch, 10>> byYearDigit[]{
    {LuCun, {Shen, You, Hai, Zi, Yin, Mao, Si, Wu, Si, Wu}},
    {TianKui, {Chou, Hai, Mao, Mao, Chou, Zi, Wu, Wu, Chou, Zi}},
    {TianYueTwo, {Wei, You, Si, Si, Wei, Shen, Yin, Yin, Wei, Shen}},
    {TianGuan, {Hai, You, Xu, Wu, Wei, Chen, Si, Yin, Mao, You}},
    {TianFutwo, {Wu, Si, Wu, Si, You, Shen, Zi, Hai, Mao, Yin}}};
constexpr std::pair<Star, std::array<Star, 10>> transformedByYearDigit[]{
    {HuaLu, {TaiYang, JuMen, TianLiang, PoJun, LianZhen, TianJi, TianTong, TaiYin, TanLang, WuQu}},
    {HuaQuan, {WuQu, TaiYang, ZiWei, JuMen, PoJun, TianLiang, TianJi, TianTong, TaiYin, TanLang}},
    {Huake, {TianTong, WenQu, ZuoFu, TaiYin, WuQu, ZiWei, WenChang, TianJi, YouBi, TianLiang}},
    {HuaJi, {TaiYin, WenChang, WuQu, TanLang, TaiYang, TaiYin, LianZhen, JuMen, TianJi, WenQu}}};
constexpr const char* stems[]{"Jia", "Yi", "Bing", "Ding", "Wu", "Ji", "Geng", "Xin", "Ren", "Gui"};
constexpr std::pair<const char*, int> bureaus[]{
    {"Metal", 4}, {"Water", 2}, {"Fire", 6}, {"Earth", 5}, {"Wood", 3}};

// The year's stem goes round in tens, the Five Tigers count the palace stems from it, and the bureau is the
// sounding element of the Life Palace: its pair of stems and its pair of branches added up. Zi Wei stands as
// many cells from Yin as bureaus reach the day, and on by the days beyond: forwards where even and backwards
// where odd; but Earth's day 26 departs on purpose.
void compare(const ChartModel& chart, int day) {
    const auto digit = static_cast<std::size_t>(chart.yearDigit), yearStem = (digit + 6) % 10;
    const auto stemOf = [=](CellIndex cell) { return (yearStem * 2 + 2 + cell.index()) % 10; };
    EXPECT_EQ(chart.yearStem, stems[yearStem]);
    for (const CellIndex cell : allCells)
        EXPECT_TRUE(chart.cell(cell).lblPalaceSteam.text().ends_with(stems[stemOf(cell)]));
    const std::size_t branchPair = (chart.lifePalace.index() / 2 + 1) % 3;
    const auto& [element, bureau] = bureaus[(stemOf(chart.lifePalace) / 2 + branchPair) % 5];
    EXPECT_EQ(chart.lblElement, element);
    const int count = (day + bureau - 1) / bureau, beyond = count * bureau - day;
    const CellIndex counted = CellIndex{count - 1} + (beyond % 2 == 0 ? beyond : -beyond);
    EXPECT_EQ(chart.cellOf(ZiWei), bureau == 5 && day == 26 ? CellIndex{Chen} : counted);
    for (const auto& [star, branches] : byMonth)
        EXPECT_EQ(chart.cellOf(star), CellIndex{branches.at(static_cast<std::size_t>(chart.lunarMonth - 1))});
    for (const auto& [star, cells] : byYearDigit) EXPECT_EQ(chart.cellOf(star), CellIndex{cells[digit]});
    for (const auto& [star, marked] : transformedByYearDigit)
        EXPECT_EQ(chart.cellOf(star), chart.cellOf(marked[digit]));
}

TEST(Tradition, HasStemsBureausAndStarsAsTheyAre) {
    for (int i = 0; i < 30 * monthCount * 10; ++i) {
        const PickedDate date{i % 30, i / 30 % monthCount, 10 + i / 30 / monthCount};
        for (int hour = 0; hour < 24; hour += 2) compare(cast({u"", date, hour, 30}), date.day());
    }
}

TEST(Chart, AgreesWithTheHandChart) {
    const ChartModel chart = cast(handBirth);
    for (const CellIndex cell : allCells) EXPECT_EQ(cellLine(chart, cell), handCells[cell.index()]);
    for (const auto& [star, field] : starTable)
        EXPECT_TRUE(chart.cell(chart.cellOf(star)).holds(star)) << field.text.text();
}

TEST(Chart, KeepsFlagsUntilTheCellsAreLoadedAndFindsMarkedBranchesOnlyOnce) {
    const BirthEntry other = birth("24.12.2003"), later = birth("31.3.1985");
    const ChartModel first = cast(handBirth);
    ChartModel both = cast(other), chart = cast(other, cast(other, first));
    both.cells[0].lblEarthlyBranches = "Zi Wei\r\nYin";
    for (const CellIndex cell : allCells) {
        for (const CellField& field : cellFields)
            if (field.flag != nullptr) both.cell(cell).*field.flag |= first.cell(cell).*field.flag;
        EXPECT_EQ(cellLine(chart, cell), cellLine(both, cell));
    }
    for (const auto& entry : {handBirth, later}) {
        chart = cast(entry, chart);  // so the cell of the chart before stays
        EXPECT_EQ(chart.cellOf(ZiWei), both.cellOf(ZiWei));
    }
    chart.loadCells();
    chart = cast(later, chart);
    EXPECT_TRUE(chart.cell(chart.cellOf(ZiWei)).holds(ZiWei)) << "its branch stays, too";
}

TEST(Chart, OfADateWithoutALunarMonthCountsFromTheChartBefore) {
    LunarMonth = 0;
    const ChartModel chart = cast(birth("9.7.1975", 0, 30));
    EXPECT_EQ(chart.cellOf(ZuoFu), CellIndex{1});
    for (const ChartCell& each : chart.cells) EXPECT_FALSE(each.lblJieShen || each.lblTianYue);
    for (const auto& [entry, month] : {std::pair{birth("24.12.2003"), 12},
                                       {birth("8.7.1975", 0, 0), 12},  // midnight moves it into the gap
                                       {birth("9.7.1975", 0, 0), 6}})  // and this one out of it
        EXPECT_EQ(cast(entry).lunarMonth, month);
}

TEST(Chart, OfMidnightIsTheNextDays) {
    constexpr std::pair<const char*, const char*> turns[]{
        {"28.2.1987", "1.3.1987"},  {"29.2.2000", "1.3.2000"},    {"30.4.1985", "1.5.1985"},
        {"31.12.1998", "1.1.1999"}, {"30.12.1999", "31.12.1999"}, {"31.12.2011", "1.1.2012"}};
    ChartModel chart;
    for (const auto& [from, to] : turns) {
        EXPECT_EQ(generateChart(birth(from, 0, 0), chart), dateOf(to)) << from;
        EXPECT_EQ(chart.yearDigit, dateOf(to).year() % 10);
        EXPECT_EQ(generateChart(birth(from, 0, 1), chart), dateOf(from));
    }
    for (auto* last : {"31.12.1999", "31.12.2012"}) EXPECT_FALSE(generateChart(birth(last, 0, 0), chart));
}

}  // namespace
