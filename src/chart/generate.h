// Casts a chart of the birth data.
#pragma once

#include <optional>

#include "chart/birth_entry.h"
#include "chart/chart_model.h"

// Casts the chart of an entry that has passed the input check. Returns the date of the chart: a birth at
// exactly 00:00 counts for the day after. Without such a day, returns std::nullopt; show no chart then.
//
// Flags, and "Zi Wei" above a branch, stay from chart to chart until the caller calls loadCells(). Even then,
// a 31st gets Zi Wei's branch and cell of the previous chart, and a date without a number its lunar month.
[[nodiscard]] std::optional<PickedDate> generateChart(const BirthEntry& entry, ChartModel& chart);
