// The lunar month look-up where it is easy to get wrong.

#include "calendar/lunar_month.h"

#include <gtest/gtest.h>

#include "chart_text.h"

namespace {

int numberOn(const std::string& date, std::int16_t before) {
    LunarMonth = before;
    FindLunarMonth(dateOf(date));
    return LunarMonth;
}

void expectNumbers(const char* list) {
    for (const auto& [date, number] : pairsOf(list)) EXPECT_EQ(numberOn(date, 0), std::stoi(number)) << date;
}

TEST(LunarMonth, ChangesOnTheDaysOfTheTable) {
    expectNumbers("1.1.1970=11 7.1.1970=11 8.1.1970=12 5.2.1970=12 6.2.1970=1 4.2.2000=12 5.2.2000=1");
    expectNumbers("31.12.2010=11 4.1.2011=12 22.1.2012=12 23.1.2012=1 31.12.2012=11");
    // a new moon on 1 January
    expectNumbers("31.12.1975=11 1.1.1976=12 31.12.1994=11 1.1.1995=12");
    // leap months carry on the number before them
    expectNumbers("23.6.1971=5 21.7.1971=5 22.7.1971=6 19.3.2004=2 18.4.2004=2 19.4.2004=3");
    // the years that go their own way
    expectNumbers("22.3.1993=2 23.3.1993=1 22.4.1993=2 20.5.1993=2 21.5.1993=4");
    expectNumbers("4.10.1994=8 5.10.1994=5 3.11.1994=6 2.12.1994=6 3.12.1994=11");
}

TEST(LunarMonth, GivesDaysThatDoNotExistTheNumberOfTheLastRealDay) {
    expectNumbers("29.2.1987=2 31.2.1987=2 31.4.1995=4 31.6.1973=6 31.9.1970=9 31.11.1978=11 30.2.1972=1");
    // two Februaries reach into March
    expectNumbers("29.2.1976=1 30.2.1976=2 31.2.1976=2 1.3.1976=2 28.2.1995=1 29.2.1995=2 31.2.1995=2");
}

TEST(LunarMonth, KeepsItsValueOnDatesWithoutANumber) {
    for (const char* gap : {"9.7.1975", "17.10.1982", "13.5.1983", "18.6.1985", "25.4.1990", "12.1.1994",
                            "19.2.1996", "17.5.1996", "1.5.1974", "21.5.1974"}) {
        EXPECT_EQ(numberOn(gap, 0), 0) << gap;
        EXPECT_EQ(numberOn(gap, 7), 7) << gap;
    }
    int count = 0;
    for (int i = 0; i < yearCount * monthCount * dayCount; ++i) {
        LunarMonth = 0;
        FindLunarMonth({i % dayCount, i / dayCount % monthCount, i / dayCount / monthCount});
        count += LunarMonth == 0 ? 1 : 0;
    }
    EXPECT_EQ(count, 21 + 8) << "three weeks of May 1974, and eight single days";
    expectNumbers("8.7.1975=5 10.7.1975=6 18.10.1982=9 14.5.1983=4 19.6.1985=5 26.4.1990=4 13.1.1994=12");
    expectNumbers("18.2.1996=12 20.2.1996=1 18.5.1996=4 30.4.1974=4 22.5.1974=4");
}

}  // namespace
