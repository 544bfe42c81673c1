// The texts and the analyses made of them, as a sum: a letter that changes, or a text in another's place or
// style, changes it.

#include <gtest/gtest.h>

#include "chart_text.h"
#include "interpret/composer.h"

namespace {

std::uint32_t addedTo(std::uint32_t sum, const std::vector<TextRun>& runs) {
    for (const auto& [text, style] : runs) {
        const auto& [bold, size, colour] = style;
        for (const int part : {int{bold}, size, int{colour.red}, int{colour.green}, int{colour.blue}})
            sum = sumOf(std::to_string(part) + ' ', sum);
        sum = sumOf(text, sum);
    }
    return sum;
}

TEST(Texts, KeepEachLetterInItsPlaceAndStyle) {
    std::uint32_t sum = addedTo(0, {introRun()});
    for (int i = 0; i < 12 * 30; ++i) {  // each star comes into each palace
        ChartModel chart = cast({u"", {i % 30, i / 30, 15}, i % 12 * 2, 30});
        for (ChartCell& each : chart.cells) each.lblMajorStars = "";  // what counts is recorded, not drawn
        sum = addedTo(sum, composeAllPalaces(chart));
        for (int cell = -1; cell <= 12; ++cell) sum = addedTo(sum, composePalaceAnalysis(chart, cell));
        chart.cells[0].lblPalace = "health";  // no name that is known
        sum = addedTo(sum, composePalaceAnalysis(chart, 0));
    }
    EXPECT_EQ(sum, 0x4db51f27U);
}

}  // namespace
