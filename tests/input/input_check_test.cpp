// What is checked of the birth data, and what the name box lets through.

#include "input/input_check.h"

#include <gtest/gtest.h>

#include "chart_text.h"

namespace {

std::string_view failureOf(const char16_t* name, const std::string& date) {
    return checkBirthEntry({name, dateOf(date), 0, 0}).value_or("");
}

TEST(InputCheck, StopsAtTheFirstFailure) {
    EXPECT_EQ(failureOf(u"", "31.4.1970"), "Please Enter Your Name !");
    for (int year = 1970; year <= 2012; ++year)
        EXPECT_EQ(failureOf(u"A", "29.2." + std::to_string(year)),
                  year % 4 == 0 ? "" : "Please Enter Correct Date Of Birth !");
    for (const char* date : {"31.4.1970", "31.6.1970", "31.9.1970", "31.11.1970"})
        EXPECT_EQ(failureOf(u"A", date), "Please Enter Correct Date Of of Birth !") << date;
    for (auto* date : {"28.2.1971", "30.4.1970", "31.12.2012"}) EXPECT_EQ(failureOf(u" ", date), "") << date;
}

TEST(NameFilter, KeepsLettersAsCapitalsAndBlanks) { EXPECT_TRUE(filterName(u"@AZ[ `az{\u00E9") == u"AZ AZ"); }

}  // namespace
