// The driver: birth data in, chart out.
#pragma once

#include <optional>

#include "chart/birth_entry.h"
#include "chart/chart_model.h"

// Casts the chart of an entry that has passed the input check and returns the date for which it was cast: a
// birth at exactly 00:00 counts for the day after. Returns nothing where there is no day after (31 December
// 1999 and 2012); the chart must not be shown then.
//
// Flags and marked branches of the chart before stay until the caller loads the cells anew. Even then two
// things carry over: Zi Wei's branch and cell on a 31st, and LunarMonth on a date that yields no number.
[[nodiscard]] std::optional<PickedDate> generateChart(const BirthEntry& entry, ChartModel& chart);
