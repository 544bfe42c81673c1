#include "chart/generate.h"

#include "calendar/lunar_month.h"
#include "chart/double_hour.h"
#include "chart/major_stars.h"
#include "chart/midnight_rule.h"
#include "chart/minor_stars.h"
#include "chart/palaces.h"
#include "chart/year_stem_stars.h"
#include "chart/zi_wei.h"

namespace {

std::u16string_view trimmed(std::u16string_view name) {
    const auto first = name.find_first_not_of(u' ');
    if (first == std::u16string_view::npos) return {};
    return name.substr(first, name.find_last_not_of(u' ') - first + 1);
}

void copyInput(const BirthEntry& entry, ChartInput& input) {
    input.name = trimmed(entry.name);
    input.year = static_cast<std::int16_t>(entry.date.year());
    input.month = entry.date.monthText();
    input.day = static_cast<std::int16_t>(entry.date.day());
}

}  // namespace

Generation generateChart(BirthEntry& entry, ChartModel& chart) {
    copyInput(entry, chart.input);
    chart.clearCaptions();
    const bool midnight = entry.hourPosition == 0 && entry.minutePosition == 0;
    if (midnight && !advanceByOneDay(entry.date)) return Generation::dateRefused;
    chart.doubleHour = doubleHourOf(entry.hourPosition, entry.minutePosition);
    FindLunarMonth(entry.date);
    chart.lunarMonth = LunarMonth;
    chart.yearDigit = static_cast<std::int16_t>(entry.date.year() % 10);
    placeLifePalace(chart);
    placeBodyPalace(chart);
    placePalaceStems(chart);
    placeElement(chart);
    placeZiWei(chart, entry.date.dayPosition);
    placeMajorStars(chart);
    placeHourStars(chart);
    placeMonthStars(chart);
    raiseMonthFlags(chart);
    placeDayStars(chart, entry.date.day());
    raiseYearStemStars(chart);
    return Generation::done;
}
