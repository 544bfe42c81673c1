// Casts a chart of the birth data.
#pragma once

#include <optional>

#include "chart/birth_entry.h"
#include "chart/chart_model.h"

// Casts the chart of an entry that has passed the input check. Returns the date of the chart: a birth at
// exactly 00:00 counts for the day after. Returns nothing if there is none; the chart must not be shown.
//
// Flags and marked branches of the previous chart stay until the caller calls loadCells(). Two values stay
// even then: Zi Wei's branch and cell for a birth on a 31st, and LunarMonth for a date without a number.
[[nodiscard]] std::optional<PickedDate> generateChart(const BirthEntry& entry, ChartModel& chart);
