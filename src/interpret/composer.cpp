#include "interpret/composer.h"

#include <algorithm>

#include "interpret/texts.h"

namespace {

constexpr TextStyle heading{true, 9, analysisBlue};
constexpr TextStyle ofPalace{true, 8, analysisBrown};
constexpr TextStyle general{true, 8, {0, 0, 0}};
constexpr TextStyle detailsLine{true, 8, analysisRed};

constexpr std::string_view paragraphEnd = "\r\n\r\n";
constexpr std::string_view bodyPalaceHeading = "Body Palace :- ";
constexpr std::string_view details = "Details about the Star present in this house :-";

using Runs = std::vector<TextRun>;

TextRun paragraph(std::string_view text, const TextStyle& style) {
    return {std::string{text}.append(paragraphEnd), style};
}

void append(Runs& runs, std::string_view headingText, std::string_view body, const TextStyle& style) {
    runs.push_back({std::string{headingText}, heading});
    runs.push_back(paragraph(body, style));
}

void appendStar(Runs& runs, std::size_t star, std::size_t palace) {
    const std::string name{fieldOf(starTexts[star].star).text.text()};
    append(runs, name + " Star :- ", starTexts[star].general, general);
    runs.push_back(paragraph(starInPalaceTexts[star][palace], ofPalace));
}

// The index of the palace whose name is in the cell, or palaceNames.size() if the name is unknown.
std::size_t palaceIn(const ChartModel& chart, CellIndex cell) {
    const auto found = std::ranges::find(palaceNames, chart.cell(cell).lblPalace);
    return static_cast<std::size_t>(found - palaceNames.begin());
}

void appendPalace(Runs& runs, const ChartModel& chart, CellIndex cell) {
    const std::size_t palace = palaceIn(chart, cell);
    const bool known = palace < palaceTexts.size();
    if (known) append(runs, palaceTexts[palace].heading, palaceTexts[palace].description, ofPalace);
    runs.push_back(paragraph(details, detailsLine));
    if (chart.bodyPalace == cell) append(runs, bodyPalaceHeading, bodyPalaceText, ofPalace);
    for (std::size_t star = 0; known && star < starTexts.size(); ++star) {
        if (chart.cellOf(starTexts[star].star) == cell) appendStar(runs, star, palace);
    }
}

}  // namespace

TextRun introRun() { return paragraph(introText, general); }

std::vector<TextRun> composePalaceAnalysis(const ChartModel& chart, int cell) {
    Runs runs;
    if (cell >= 0 && cell < cellCount) appendPalace(runs, chart, CellIndex{cell});
    return runs;
}

std::vector<TextRun> composeAllPalaces(const ChartModel& chart) {
    Runs runs;
    for (const CellIndex cell : allCells) {
        appendPalace(runs, chart, cell);
        runs.push_back({std::string{paragraphEnd}, runs.back().style});
    }
    return runs;
}
