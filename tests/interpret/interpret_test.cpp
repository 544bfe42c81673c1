// The texts, and the analyses made of them.

#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <vector>

#include "chart_text.h"
#include "interpret/composer.h"
#include "interpret/texts.h"

namespace {

// A letter that changes, or a text in another's place, shows in the sum of its palace or star.
TEST(Texts, KeepEachLetterAndTheirPlaces) {
    std::vector<std::string> texts{std::string{introText}, std::string{bodyPalaceText}};
    for (const auto& [heading, description] : palaceTexts)
        texts.push_back(std::string{heading}.append(description));
    for (std::size_t star = 0; star < starTexts.size(); ++star) {
        texts.emplace_back(fieldOf(starTexts[star].star).text.text()).append(starTexts[star].general);
        for (const std::string_view text : starInPalaceTexts[star]) texts.back().append("|").append(text);
    }
    constexpr std::array<std::uint32_t, 27> sums{
        0xea25deb6, 0x2c443783, 0xee1a3b7e, 0x7d032e8f, 0xb97025d5, 0x17144278, 0xc40d9492,
        0xf57f55b1, 0x2c21eaab, 0x48e3b651, 0x4c19a956, 0x75360ac9, 0xafa31298, 0xd429349c,
        0x952afabc, 0x55c3e2a9, 0x49e915a9, 0x474aa408, 0x64e88821, 0xb3ee3d95, 0xe93605b1,
        0xde89ccad, 0xe5f0c7c5, 0x3031a497, 0x2d986f83, 0x15e91af8, 0x4edfa4ea};
    for (std::size_t i = 0; i < sums.size(); ++i) EXPECT_EQ(sumOf(texts.at(i)), sums[i]) << texts[i];
}

using Runs = std::vector<TextRun>;

constexpr TextStyle heading{true, 9, {13, 36, 166}}, brown{true, 8, {101, 14, 14}};
constexpr TextStyle black{true, 8, {0, 0, 0}}, red{true, 8, {128, 0, 0}};

void add(Runs& runs, std::string_view text, const TextStyle& style, std::string_view end = "\r\n\r\n") {
    runs.push_back({std::string{text}.append(end), style});
}

bool same(const Runs& left, const Runs& right) {
    const auto parts = [](const TextRun& run) { return std::pair{run.text, run.style}; };
    return std::ranges::equal(left, right, {}, parts, parts);
}

// What each cell of the hand chart is about: its palace and then its stars, as indices into the texts.
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
        EXPECT_TRUE(same(composePalaceAnalysis(chart, cell.value()), runs)) << cell.value();
        all.insert(all.end(), runs.begin(), runs.end());
        add(all, "", runs.back().style);
    }
    EXPECT_TRUE(same(composeAllPalaces(chart), all));
    EXPECT_TRUE(same({introRun()}, {{std::string{introText} + "\r\n\r\n", black}}));
    chart.cells[0].lblPalace = "health";  // no name that is known
    EXPECT_EQ(composePalaceAnalysis(chart, 0).size(), 1U);
    for (const int cell : {-1, 12}) EXPECT_TRUE(composePalaceAnalysis(chart, cell).empty());
}

}  // namespace
