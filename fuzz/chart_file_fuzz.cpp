// Feeds arbitrary bytes to the program as chart files, one after another in one session: reading, decoding,
// the selection in the lists, the check, casting and composing. Whatever a file holds, the chart is a whole
// one.

#include <fuzzer/FuzzedDataProvider.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>

#include "calendar/lunar_month.h"
#include "chart/generate.h"
#include "files/chart_file.h"
#include "input/birth_lists.h"
#include "input/input_check.h"
#include "input/name_filter.h"
#include "interpret/composer.h"
#include "interpret/texts.h"
#include "must.h"

namespace {

ChartFileValues readBack(const std::string& bytes) {
    static const int file = memfd_create("chart", MFD_CLOEXEC);
    static const std::string path = "/proc/self/fd/" + std::to_string(file);
    must(ftruncate(file, 0) == 0);
    must(pwrite(file, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
    return readChartFile(path);
}

std::u16string wide(const std::string& latin1) {
    std::u16string text;
    for (const char character : latin1) text += static_cast<unsigned char>(character);
    return text;
}

// As in the form: a text that is no entry leaves the list as it was.
void selectText(int& position, const std::vector<std::string>& entries, const std::string& text) {
    const auto entry = std::find(entries.begin(), entries.end(), text);
    if (entry != entries.end()) position = static_cast<int>(entry - entries.begin());
}

void open(const ChartFileValues& file, BirthEntry& entry) {
    static const auto days = dateEntries(), months = monthEntries(), years = yearEntries();
    entry.name = wide(file.name);
    selectText(entry.date.dayPosition, days, file.day);
    selectText(entry.date.monthPosition, months, file.month);
    selectText(entry.date.yearPosition, years, file.year);
}

void mustLieInLists(const BirthEntry& entry) {
    must(entry.date.dayPosition >= 0 && entry.date.dayPosition < dayCount);
    must(entry.date.monthPosition >= 0 && entry.date.monthPosition < monthCount);
    must(entry.date.yearPosition >= 0 && entry.date.yearPosition < yearCount);
}

template <class Field>
long cellsWith(const ChartModel& chart, Field field, std::string_view text) {
    return std::count_if(chart.cells.begin(), chart.cells.end(),
                         [&](const ChartCell& cell) { return (cell.*field).text() == text; });
}

void mustHavePlainCaptions(const ChartModel& chart) {
    for (const ChartCell& cell : chart.cells) {
        for (const CaptionField& caption : captionFields) {
            const std::string_view text = (cell.*caption.field).text();
            must(text.size() <= 15);
            must(std::all_of(text.begin(), text.end(),
                             [](char c) { return (c >= ' ' && c <= '~') || c == '\r' || c == '\n'; }));
        }
    }
}

void mustHaveAllPalaces(const ChartModel& chart) {
    for (const PalaceText& palace : palaceTexts)
        must(cellsWith(chart, &ChartCell::lblPalace, palace.key) == 1);
    must(chart.cell(chart.lifePalace).lblPalace.text() == "Life Palace");
    must(cellsWith(chart, &ChartCell::lblBody, "* Body") == 1 &&
         !chart.cell(chart.bodyPalace).lblBody.empty());
}

// Zi Wei itself is a mark on a branch, which a chart without one before it may lack.
void mustHaveAllMajorStars(const ChartModel& chart) {
    for (const char* star : {"Tian Ji", "Tai Yang", "Wu Qu", "Tian Tong", "Lian Zhen"}) {
        must(cellsWith(chart, &ChartCell::lblMajorStars, star) == 1);
    }
    for (const char* star :
         {"Tian Fu", "Tai Yin", "Tan Lang", "Ju Men", "Tian Xiang", "Tian Liang", "Qi Sha", "Po Jun"}) {
        must(cellsWith(chart, &ChartCell::lblTianFu, star) == 1);
    }
    must(chart.cellOf(Star::ZiWei) == chart.ziWeiCell);
}

void mustComposeWhole(const ChartModel& chart) {
    const auto all = composeAllPalaces(chart);
    std::size_t runs = 0;
    for (const CellIndex cell : allCells) {
        for (const TextRun& run : composePalaceAnalysis(chart, cell.value()))
            must(all[runs++].text == run.text);
        must(all[runs++].text == "\r\n\r\n");
    }
    must(runs == all.size() && composePalaceAnalysis(chart, cellCount).empty());
    for (const StarText& star : starTexts) {
        must(std::count_if(all.begin(), all.end(),
                           [&](const TextRun& run) { return run.text == star.heading; }) == 1);
    }
    must(std::none_of(all.begin(), all.end(), [](const TextRun& run) { return run.text.empty(); }));
}

void mustRoundTrip(const ChartInput& input) {
    const ChartFileValues file = readBack(chartFileBytes(input));
    must(wide(file.name) == input.name && file.month == input.month);
    must(file.day == std::to_string(input.day) && file.year == std::to_string(input.year));
}

// Casts a chart of the entry, as pressing the button does, and returns whether it is shown.
bool cast(BirthEntry& entry, ChartModel& chart) {
    mustLieInLists(entry);
    if (checkBirthEntry(entry) || generateChart(entry, chart) == Generation::dateRefused) return false;
    mustLieInLists(entry);
    must(chart.lunarMonth >= 0 && chart.lunarMonth <= 12 && chart.doubleHour >= 1 && chart.doubleHour <= 12);
    mustHavePlainCaptions(chart);
    mustHaveAllPalaces(chart);
    mustHaveAllMajorStars(chart);
    mustComposeWhole(chart);
    mustRoundTrip(chart.input);
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input{data, size};
    LunarMonth = 0;
    ChartModel fresh;    // its cells are loaded before each chart, as in the program
    ChartModel carried;  // its cells never are
    BirthEntry entry;
    // A line as long as any that is read, which the fuzzer would hardly reach byte by byte.
    std::string longLine(input.ConsumeIntegral<std::uint16_t>() == 0xABCD ? longestLine - 2 : 0, '\x96');
    for (int opened = 0; opened < 4 && input.remaining_bytes() > 0; ++opened) {
        const ChartFileValues file = readBack(longLine + input.ConsumeRandomLengthString());
        longLine.clear();
        must(file.name.size() <= longestLine);
        filterName(wide(file.name));
        entry.hourPosition = input.ConsumeIntegralInRange(0, hourCount - 1);
        entry.minutePosition = input.ConsumeIntegralInRange(0, minuteCount - 1);
        open(file, entry);
        BirthEntry again = entry;
        cast(again, carried);
        fresh.loadCells();
        if (cast(entry, fresh)) entry = {};  // the way back to the form empties it
    }
    return 0;
}
