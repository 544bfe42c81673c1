// The texts: the letters of those that are fixed, the place of the others, and the analyses made of them.

#include <gtest/gtest.h>

#include <set>
#include <span>
#include <vector>

#include "chart_text.h"
#include "interpret/composer.h"
#include "interpret/texts.h"

namespace {

// The stars in palaces whose texts are fixed, as indices into the table.
constexpr std::pair<std::size_t, std::size_t> fixed[]{{0, 4},  {0, 5},   {1, 2},   {1, 7},  {1, 8},
                                                      {1, 9},  {1, 10},  {1, 11},  {10, 7}, {10, 8},
                                                      {10, 9}, {10, 10}, {10, 11}, {12, 6}};

// A letter that changes shows in the text's own sum, the lower half of the 32-bit FNV-1a.
TEST(Texts, KeepEachLetterWhereTheyAreFixed) {
    std::vector<std::string> texts{std::string{introText}, std::string{bodyPalaceText}};
    for (const auto& [heading, text] : palaceTexts) texts.push_back(std::string{heading}.append(text));
    for (const auto& [star, text] : starTexts) texts.emplace_back(text);
    for (const auto& [star, palace] : fixed) texts.emplace_back(starInPalaceTexts[star][palace]);
    constexpr std::array<std::uint16_t, 41> sums{
        0xdeb6, 0x3783, 0x3b7e, 0x2e8f, 0x25d5, 0x4278, 0x9492, 0x55b1, 0xeaab, 0xb651, 0xa956,
        0x0ac9, 0x1298, 0x349c, 0x6d40, 0x77e0, 0xb102, 0x28d3, 0x740b, 0xe0d4, 0x0a6c, 0x5156,
        0x52ae, 0x1188, 0xfe85, 0x3e61, 0x35fb, 0x2532, 0xb4d0, 0xc439, 0x6c00, 0x867c, 0x33dc,
        0x98e7, 0x965a, 0x6c00, 0x867c, 0x33dc, 0xeffd, 0x3487, 0x9acb};
    for (std::size_t i = 0; i < sums.size(); ++i) {
        std::uint32_t sum = 0x811c9dc5;
        for (const char letter : texts.at(i)) sum = (sum ^ static_cast<unsigned char>(letter)) * 0x01000193;
        EXPECT_EQ(sum & 0xffff, sums[i]) << texts[i];
    }
}

TEST(Texts, StandWithTheirPalacesAndAreDistinct) {
    std::set<std::string_view> texts;
    std::array<std::string, palaceNames.size()> inPalaces;
    for (const auto& star : starInPalaceTexts) {
        texts.insert(star.begin(), star.end());
        for (std::size_t palace = 0; palace < palaceNames.size(); ++palace) inPalaces[palace] += star[palace];
    }
    EXPECT_EQ(texts.size(), 153U);  // of 156
    constexpr std::pair<const char*, std::size_t> onlyIn[]{
        {"sister", 1},     {"spouse", 2},   {"hildren", 3}, {"friend", 7},     {"parents", 11},
        {"Tiang Tong", 4}, {"Tian Fun", 3}, {"l or 2", 3},  {"o the cards", 4}};
    for (const auto& [word, own] : onlyIn)
        for (std::size_t palace = 0; palace < palaceNames.size(); ++palace)
            EXPECT_EQ(inPalaces[palace].find(word) != std::string::npos, palace == own) << word;
}

using Runs = std::vector<TextRun>;

constexpr TextStyle heading{true, 9, {13, 36, 166}}, brown{true, 8, {101, 14, 14}};
constexpr TextStyle black{true, 8, {0, 0, 0}}, red{true, 8, {128, 0, 0}};

void add(Runs& runs, std::string_view text, const TextStyle& style, std::string_view end = "\r\n\r\n") {
    runs.push_back({std::string{text}.append(end), style});
}

// What each cell of the first hand chart is about: its palace and then its stars, as indices into the texts.
const std::vector<std::vector<std::size_t>> subjects{{5, 0, 6}, {4, 7},      {3, 8}, {2, 9}, {1, 5}, {0, 11},
                                                     {11, 12},  {10, 4, 10}, {9, 3}, {8, 2}, {7},    {6, 1}};

TEST(Composer, WritesPalaceBodyAndStarsInTheirOrder) {
    ChartModel chart = cast(handBirth);
    for (ChartCell& each : chart.cells) each.lblMajorStars = "";  // what counts is recorded, not drawn
    Runs all;
    for (const CellIndex cell : allCells) {
        const std::size_t palace = subjects[cell.index()].front();
        Runs runs;
        add(runs, palaceTexts[palace].heading, heading, "");
        add(runs, palaceTexts[palace].description, brown);
        add(runs, "Details about the Star present in this house :-", red);
        if (cell.value() == 7) add(runs, "Body Palace :- ", heading, "");
        if (cell.value() == 7) add(runs, bodyPalaceText, brown);
        for (const std::size_t star : std::span{subjects[cell.index()]}.subspan(1)) {
            add(runs, fieldOf(starTexts[star].star).text.text(), heading, " Star :- ");
            add(runs, starTexts[star].general, black);
            add(runs, starInPalaceTexts[star][palace], brown);
        }
        EXPECT_TRUE(composePalaceAnalysis(chart, cell.value()) == runs) << cell.value();
        all.insert(all.end(), runs.begin(), runs.end());
        add(all, "", runs.back().style);
    }
    EXPECT_TRUE(composeAllPalaces(chart) == all);
    EXPECT_TRUE((introRun() == TextRun{std::string{introText} + "\r\n\r\n", black}));
    chart.cells[0].lblPalace = "health";  // no name that is known
    EXPECT_EQ(composePalaceAnalysis(chart, 0).size(), 1U);
    for (const int cell : {-1, 12}) EXPECT_TRUE(composePalaceAnalysis(chart, cell).empty());
}

}  // namespace
