// Feeds arbitrary bytes to the program as chart files, one after another in one session: decoding, the
// selection in the lists, the check, casting and composing. Whatever a file holds, the chart is a whole one.

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>

#include "calendar/lunar_month.h"
#include "chart/generate.h"
#include "files/chart_file.h"
#include "input/input_check.h"
#include "interpret/composer.h"
#include "interpret/texts.h"

namespace {

// A claim that does not hold ends the run, and the input that did it is kept.
void must(bool holds) {
    if (!holds) __builtin_trap();
}

std::u16string wide(const std::string& latin1) {
    std::u16string text;
    for (const char character : latin1) text += static_cast<unsigned char>(character);
    return text;
}

// As in the form: a text that is not in the list leaves the position as it was.
void selectNumber(int& position, int first, int count, const std::string& text) {
    for (int i = 0; i < count; ++i) {
        if (std::to_string(first + i) == text) position = i;
    }
}

void open(const ChartFileValues& file, BirthEntry& entry) {
    entry.name = wide(file.name);
    selectNumber(entry.date.dayPosition, 1, dayCount, file.day);
    const auto month = std::find(monthNames.begin(), monthNames.end(), file.month);
    if (month != monthNames.end()) entry.date.monthPosition = static_cast<int>(month - monthNames.begin());
    selectNumber(entry.date.yearPosition, firstYear, yearCount, file.year);
}

// Each palace and each of the thirteen stars that are explained has its heading once, and the palaces of Life
// and Body are where the chart says.
void mustBeWhole(const ChartModel& chart) {
    const auto all = composeAllPalaces(chart);
    const auto mustHaveOnce = [&all](std::string_view heading) {
        const auto isHeading = [heading](const TextRun& run) { return run.text == heading; };
        must(std::count_if(all.begin(), all.end(), isHeading) == 1);
    };
    for (const PalaceText& palace : palaceTexts) mustHaveOnce(palace.heading);
    for (const StarText& star : starTexts)
        mustHaveOnce(std::string{fieldOf(star.star).text.text()} + " Star :- ");
    must(chart.cell(chart.lifePalace).lblPalace.text() == "Life Palace");
    must(chart.cell(chart.bodyPalace).lblBody.text() == "* Body");
    must(chart.lunarMonth >= 0 && chart.lunarMonth <= 12 && chart.doubleHour >= 1 && chart.doubleHour <= 12);
}

// Casts a chart of the entry, as pressing the button does, and returns whether it is shown.
bool cast(const BirthEntry& entry, ChartModel& chart) {
    if (checkBirthEntry(entry)) return false;
    const auto date = generateChart(entry, chart);
    if (!date) return false;
    must(date->exists() && date->yearPosition < yearCount);
    mustBeWhole(chart);
    const ChartFileValues file = chartFileValues(chartFileBytes(chart.input));
    must(wide(file.name) == chart.input.name && file.month == chart.input.month);
    must(file.day == std::to_string(chart.input.day) && file.year == std::to_string(chart.input.year));
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input{data, size};
    LunarMonth = 0;
    ChartModel fresh;    // its cells are loaded before each chart, as in the program
    ChartModel carried;  // its cells never are
    BirthEntry entry;
    for (int opened = 0; opened < 4 && input.remaining_bytes() > 0; ++opened) {
        open(chartFileValues(input.ConsumeRandomLengthString()), entry);
        filterName(entry.name);
        entry.hourPosition = input.ConsumeIntegralInRange(0, hourCount - 1);
        entry.minutePosition = input.ConsumeIntegralInRange(0, minuteCount - 1);
        cast(entry, carried);
        fresh.loadCells();
        if (cast(entry, fresh)) entry = {};  // the way back to the form empties it
    }
    return 0;
}
