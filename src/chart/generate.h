// The driver: birth data in, chart out.
#pragma once

#include <optional>

#include "chart/birth_entry.h"
#include "chart/chart_model.h"

// Casts the chart of an entry that has passed the input check and returns the date for which it was cast: a
// birth at exactly 00:00 counts for the day after. Captions are overwritten; flags are only set and marked
// branches stay, so call ChartModel::loadCells() before it for a chart that stands alone. Returns nothing
// where there is no day after (31 December 1999 and 2012); the chart is not to be shown then.
[[nodiscard]] std::optional<PickedDate> generateChart(const BirthEntry& entry, ChartModel& chart);
