// The naming rule of pictures, as one table.

#include "files/picture_name.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace {

using Paths = std::set<std::string>;

// The chart's picture and so many copies of it.
Paths copies(int last) {
    Paths paths{"/p/chart.jpg"};
    for (int counter = 1; counter <= last; ++counter) {
        paths.insert("/p/chart_" + std::to_string(1000 + counter).substr(1) + ".jpg");
    }
    return paths;
}

struct Naming {
    const char* folder;
    const char* name;
    Paths present;
    const char* path;
};

// clang-format off
const std::vector<Naming> namings{
    // the name
    {"/p/", "chart",        {}, "/p/chart.jpg"},
    {"/p/", "chart.jpg",    {}, "/p/chart.jpg"},
    {"/p/", "chart.JPG",    {}, "/p/chart.JPG"},
    {"/p/", "chart.png",    {}, "/p/chart.png"},
    {"/p/", "chart.bmp",    {}, "/p/chart.jpg"},
    {"/p/", "a.BMP.Bmp.b",  {}, "/p/a.jpg.jpg.b"},
    {"/p/", "bmp",          {}, "/p/bmp.jpg"},
    {"/p/", "",             {}, "/p/20090307040506007.jpg"},
    // the folder
    {"",         "chart",   {}, "/app/chart.jpg"},
    {"/p",       "chart",   {}, "/p/chart.jpg"},
    {"//p//q//", "chart",   {}, "/p/q/chart.jpg"},
    {"/x.bmp/",  "chart",   {}, "/x.bmp/chart.jpg"},
    {"/p\\\\q/", "a\\b",    {}, "/p\\\\q/a\\b.jpg"},
    // names that are taken
    {"/p/",   "chart",        {"/p/chart"},                        "/p/chart.jpg"},
    {"/p/",   "chart",        copies(0),                           "/p/chart_001.jpg"},
    {"/p/",   "chart",        {"/p/chart.jpg", "/p/chart_001.jpg", "/p/chart_003.jpg"}, "/p/chart_002.jpg"},
    {"/p/",   "my.chart.jpg", {"/p/my.chart.jpg"},                 "/p/my_001.chart_001.jpg"},
    {"/p.d/", "chart",        {"/p.d/chart.jpg"},                  "/p.d/chart_001.jpg"},
    {"",      "",             {"/app/20090307040506007.jpg"},      "/app/20090307040506007_001.jpg"},
    {"/p/",   "chart",        copies(99),                          "/p/chart_100.jpg"},
    {"/p/",   "chart",        copies(998),                         "/p/chart_999.jpg"},
    {"/p/",   "chart",        copies(999),                         "/p/chart.jpg"},
};
// clang-format on

TEST(PictureName, FollowsTheNamingRule) {
    for (const auto& [folder, name, present, path] : namings) {
        const auto exists = [&taken = present](const std::string& candidate) {
            return taken.contains(candidate);
        };
        const auto result = uniquePictureName(
            folder, name, {"/app", exists, [] { return ClockTime{2009, 3, 7, 4, 5, 6, 7}; }});
        EXPECT_EQ(result.path(), path) << folder << " " << name;
        EXPECT_EQ(result.tooManyCopies, present.size() == 1000);
    }
    EXPECT_EQ(bitmapPathFor("/p.jpg/my.chart.JPG"), "/p.jpg/my.chart.bmp");
    EXPECT_EQ(bitmapPathFor("/p/chart.png"), "/p/chart.png");
}

}  // namespace
