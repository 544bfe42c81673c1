#include "chart/generate.h"

#include "calendar/lunar_month.h"
#include "chart/birth_time.h"
#include "chart/placement.h"

namespace {

std::u16string_view trimmed(std::u16string_view name) {
    const auto first = name.find_first_not_of(u' ');
    if (first == std::u16string_view::npos) return {};
    return name.substr(first, name.find_last_not_of(u' ') - first + 1);
}

}  // namespace

std::optional<PickedDate> generateChart(const BirthEntry& entry, ChartModel& chart) {
    chart.input = {std::u16string{trimmed(entry.name)}, static_cast<std::int16_t>(entry.date.year()),
                   entry.date.monthText(), static_cast<std::int16_t>(entry.date.day())};
    chart.clearCaptions();
    const bool midnight = entry.hourPosition == 0 && entry.minutePosition == 0;
    const auto date = midnight ? dayAfter(entry.date) : entry.date;
    if (!date) return std::nullopt;
    chart.doubleHour = doubleHourOf(entry.hourPosition, entry.minutePosition);
    FindLunarMonth(*date);
    chart.lunarMonth = LunarMonth;
    chart.yearDigit = static_cast<std::int16_t>(date->year() % 10);
    placeLifePalace(chart);
    placeBodyPalace(chart);
    placePalaceStems(chart);
    placeElement(chart);
    placeZiWei(chart, date->dayPosition);
    placeMajorStars(chart);
    placeHourStars(chart);
    placeMonthStars(chart);
    placeDayStars(chart, date->day());
    placeYearStemStars(chart);
    return date;
}
