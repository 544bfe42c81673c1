// The order, the wording and the style of an analysis.

#include "interpret/composer.h"

#include <gtest/gtest.h>

#include "chart_text.h"
#include "interpret/texts.h"

namespace {

// The runs as one text, each after a mark of its style.
std::string marked(const std::vector<TextRun>& runs) {
    constexpr std::pair<const char*, TextStyle> styles[]{{"<heading>", {true, 9, {13, 36, 166}}},
                                                         {"<brown>", {true, 8, {101, 14, 14}}},
                                                         {"<black>", {true, 8, {0, 0, 0}}},
                                                         {"<red>", {true, 8, {128, 0, 0}}}};
    std::string text;
    for (const TextRun& run : runs) {
        for (const auto& [mark, style] : styles) text += run.style == style ? mark : "";
        text += run.text;
    }
    return text;
}

const std::string end = "\r\n\r\n";
const std::string details = "<red>Details about the Star present in this house :-" + end;
const std::string body = "<heading>Body Palace :- <brown>" + std::string{bodyPalaceText} + end;

std::string starPart(std::size_t star, std::size_t palace) {
    return "<heading>" + std::string{starTexts[star].heading} + "<black>" +
           std::string{starTexts[star].general} + end + "<brown>" +
           std::string{starInPalaceTexts[star][palace]} + end;
}

std::string palacePart(std::size_t palace) {
    return "<heading>" + std::string{palaceTexts[palace].heading} + "<brown>" +
           std::string{palaceTexts[palace].description} + end + details;
}

std::string analysis(const ChartModel& chart, int cell) { return marked(composePalaceAnalysis(chart, cell)); }

TEST(Composer, WritesPalaceBodyAndStarsInTheirOrder) {
    const ChartModel first = cast(handCharts[0].entry), second = cast(handCharts[1].entry);
    const ChartModel third = cast(birth("24.12.2003", 21, 0));
    EXPECT_EQ(marked({introRun()}), "<black>" + std::string{introText} + end);
    EXPECT_EQ(analysis(first, 0), palacePart(5) + starPart(0, 5) + starPart(6, 5)) << "Zi Wei with Tian Fu";
    EXPECT_EQ(analysis(first, 4), palacePart(1) + starPart(5, 1)) << "Tian Xiang has no text";
    EXPECT_EQ(analysis(first, 7), palacePart(10) + body + starPart(4, 10) + starPart(10, 10));
    EXPECT_EQ(analysis(first, 9), palacePart(8) + starPart(2, 8));
    EXPECT_EQ(analysis(first, 10), palacePart(7)) << "Po Jun has no text";
    EXPECT_EQ(analysis(second, 0), palacePart(0) + body);
    EXPECT_EQ(analysis(third, 6), palacePart(7) + starPart(4, 7) + starPart(10, 7) + starPart(11, 7));
    ChartModel crowded;  // every star is recorded in cell 0
    crowded.cell(CellIndex{0}).lblPalace = "Travel";
    std::string expected = palacePart(6) + body;
    for (std::size_t star = 0; star < starTextCount; ++star) expected += starPart(star, 6);
    EXPECT_EQ(analysis(crowded, 0), expected);
}

TEST(Composer, GoesByWhatIsRecordedNotByWhatIsDrawn) {
    const ChartModel chart = cast(birth("31.3.1985"));
    EXPECT_EQ(chart.cell(CellIndex{0}).lblEarthlyBranches, "Yin");
    EXPECT_NE(analysis(chart, 0).find("Zi Wei Star :- "), std::string::npos);
}

TEST(Composer, PassesOverWhatItDoesNotKnow) {
    ChartModel chart;
    for (const char* name : {"", "life palace", "Life", "Wealth ", "Carrer"}) {
        chart.cell(CellIndex{0}).lblPalace = name;
        EXPECT_EQ(analysis(chart, 0), details + body) << name;
    }
    for (const int cell : {-1, 12, 1000}) EXPECT_EQ(analysis(chart, cell), "");
}

TEST(Composer, PartsThePalacesOfTheWholeAnalysisInTheStyleBefore) {
    const ChartModel chart = cast(handCharts[0].entry);
    std::string expected;
    for (int cell = 0; cell < cellCount; ++cell) {
        const auto palace = composePalaceAnalysis(chart, cell);
        expected += marked(palace) + marked({{end, palace.back().style}});
    }
    EXPECT_EQ(marked(composeAllPalaces(chart)), expected);
}

}  // namespace
