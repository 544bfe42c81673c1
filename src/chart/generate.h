// The driver: birth data in, chart out.
#pragma once

#include "chart/birth_entry.h"
#include "chart/chart_model.h"

enum class Generation {
    done,
    dateRefused,  // midnight on a last day of December that the lists can't leave
};

// Casts the chart of an entry that has passed the input check. A birth at exactly 00:00 moves the entry's
// date on by one day first. Captions are overwritten; flags are only set and marked branches stay, so call
// ChartModel::loadCells() before it for a chart that stands alone. Where the date is refused, the entry is
// unchanged and the chart is not to be shown.
[[nodiscard]] Generation generateChart(BirthEntry& entry, ChartModel& chart);
