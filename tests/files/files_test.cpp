// Chart files, what is written and what is made of whatever stands in one; and the naming rule of pictures.

#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "files/chart_file.h"
#include "files/picture_name.h"

namespace {

std::string readBack(const std::string& bytes) {
    const auto [name, day, month, year] = chartFileValues(bytes);
    return name + "|" + day + "|" + month + "|" + year;
}

TEST(ChartFile, HoldsFourShiftedLines) {
    EXPECT_EQ(chartFileBytes({u"JOHN SMITH", 1985, "March", 5}),
              "\x9F\xA4\x9D\xA3\x75\xA8\xA2\x9E\xA9\x9D\r\n\x8A\r\n\xA2\xB6\xC7\xB8\xBD\r\n"
              "\x86\x8E\x8D\x8A\r\n");
    // 170 is the last code that can be shifted, and Latin-1 ends at 255
    EXPECT_EQ(readBack(chartFileBytes({u"\u00AAX\u00AB\u00E9Y\u4E00", 2012, "December", 31})),
              "\xAAXY?|31|December|2012");
    EXPECT_LE(chartFileBytes({std::u16string(32767, u'J'), 1985, "September", 30}).size(), longestChartFile);
}

TEST(ChartFile, IsReadWhateverItHolds) {
    const std::string a = EncodeLine("A"), b = EncodeLine("2"), c = EncodeLine("May"), d = EncodeLine("1999");
    EXPECT_EQ(readBack(a + "\r\n" + b + "\r\n" + c + "\r\n"), "A|2|May|");
    EXPECT_EQ(readBack(a + "\n" + b + "\r" + c + "\r\n" + d + "\r\nfifth"), "A|2|May|1999");
    EXPECT_EQ(readBack(a + "\r\r\n" + b + "\n\n" + d), "A||2|");
    EXPECT_EQ(readBack("A NAME 1999\r\n12\r\nMay\r\n\x54\x56\xFF"), "||\f$|\x01\xAA");
}

TEST(ChartFile, IsKnownByTheLastThreeCharactersAsTheyStand) {
    for (const char* name : {"chart.plf", "plf"}) EXPECT_TRUE(hasChartFileEnding(name)) << name;
    for (const char* name : {"", "lf", "chart.PLF", "chart.plf "}) EXPECT_FALSE(hasChartFileEnding(name));
}

const std::string a244(244, 'a'), b252(252, 'b');

// Folder, name, what is taken, and the path for the picture.
// clang-format off
const std::tuple<const char*, std::string, std::set<std::string>, std::string> namings[]{
    {"/x.bmp/",  "a.BMP.Bmp.b", {}, "/x.bmp/a.jpg.jpg.b"},
    {"",         "chart",       {}, "/app/chart.jpg"},
    {"//p//q//", "chart",       {}, "/p/q/chart.jpg"},
    {"/p\\\\q",  "a\\b",        {}, "/p\\\\q/a\\b.jpg"},
    {"/p/",   "chart",        {"/p/chart.jpg", "/p/chart_001.jpg", "/p/chart_003.jpg"}, "/p/chart_002.jpg"},
    {"/p.d/", "my.chart.jpg", {"/p.d/my.chart.jpg"},                                    "/p.d/my_001.chart_001.jpg"},
    {"/p/",   "",             {"/p/20090307040506007.jpg"},                             "/p/20090307040506007_001.jpg"},
    // names as long as a file system holds, 255 bytes: whole characters go, here one of two bytes
    {"/p/", a244 + "aaa",              {"/p/" + a244 + "aaa.jpg"},              "/p/" + a244 + "aaa_001.jpg"},
    {"/p/", a244 + "\xC3\xA9\xC3\xA9", {"/p/" + a244 + "\xC3\xA9\xC3\xA9.jpg"}, "/p/" + a244 + "\xC3\xA9_001.jpg"},
    {"/p/", "b." + b252,               {"/p/b." + b252},                        "/p/_001." + b252},
};
// clang-format on

TEST(PictureName, FollowsTheNamingRule) {
    for (const auto& [folder, name, taken, path] : namings) {
        const auto exists = [&those = taken](const auto& each) { return those.contains(each); };
        EXPECT_EQ(uniquePictureName(folder, name, {"/app", exists, "20090307040506007"}).path(), path);
    }
    const auto allButOne = [](const std::string& candidate) { return candidate != "/p/chart_999.jpg"; };
    EXPECT_EQ(uniquePictureName("/p", "chart", {"", allButOne, ""}).name, "chart_999.jpg");
    EXPECT_EQ(bitmapPathFor("/p.jpg/my.chart.JPG"), "/p.jpg/my.chart.bmp");
}

}  // namespace
