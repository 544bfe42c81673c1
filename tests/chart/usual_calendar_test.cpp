// The lunar months beside another library's calendar.

#include <gtest/gtest.h>
#include <unicode/calendar.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

#include "calendar/lunar_month.h"

namespace {

// Departures are told by their first date, our number for the usual one, and the first date after them. Days
// that a month does not have count as its last. In 1987, 1999 and 2012 it is the library that departs.
TEST(Tradition, HasTheLunarMonthsOfTheUsualCalendarButForTheDepartures) {
    using namespace std::chrono;
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> chinese{icu::Calendar::createInstance(
        icu::TimeZone::createTimeZone("GMT+8"), icu::Locale{"@calendar=chinese"}, error)};
    std::string found, before = ", ";
    for (int i = 0; i < yearCount * monthCount * dayCount; ++i) {
        const PickedDate date{i % dayCount, i / dayCount % monthCount, i / dayCount / monthCount};
        const auto month = year{date.year()} / date.month();
        const auto noon = std::min(sys_days{month / 1} + days{date.dayPosition}, sys_days{month / last}) + 4h;
        chinese->setTime(static_cast<double>(milliseconds{noon.time_since_epoch()}.count()), error);
        const int usual = chinese->get(UCAL_MONTH, error) + 1;  // in a leap month that of the month before
        LunarMonth = 0;
        FindLunarMonth(date);
        std::string now = ": " + std::to_string(LunarMonth) + " for " + std::to_string(usual) + " to ";
        if (LunarMonth == usual) now = ", ";
        if (now != std::exchange(before, now))
            found += std::to_string(date.day()) + '.' + std::to_string(date.month()) + '.' +
                     std::to_string(date.year()) + now;
    }
    EXPECT_EQ(found,
              "1.5.1974: 0 for 4 to 22.5.1974, 9.7.1975: 0 for 6 to 10.7.1975, "
              "30.2.1976: 2 for 1 to 1.3.1976, 17.10.1982: 0 for 9 to 18.10.1982, "
              "13.5.1983: 0 for 4 to 14.5.1983, 18.6.1985: 0 for 5 to 19.6.1985, "
              "26.7.1987: 6 for 7 to 24.8.1987, 25.4.1990: 0 for 4 to 26.4.1990, "
              "23.3.1993: 1 for 3 to 22.4.1993: 2 for 3 to 21.5.1993, 12.1.1994: 0 for 12 to 13.1.1994, "
              "5.10.1994: 5 for 9 to 3.11.1994: 6 for 10 to 3.12.1994, 29.2.1995: 2 for 1 to 1.3.1995, "
              "19.2.1996: 0 for 1 to 20.2.1996, 17.5.1996: 0 for 4 to 18.5.1996, "
              "17.1.1999: 12 for 11 to 18.1.1999, 17.8.2012: 7 for 6 to 18.8.2012, ");
}

}  // namespace
