// Zi Wei, placed by the five-element bureau and the day of birth.
#pragma once

#include "chart/chart_model.h"

// Finds Zi Wei's branch by the chart's element and the day's list position (0..30, the solar day as entered),
// marks the cell whose branch text is exactly that branch, and records the cell. On a 31st, or where that
// cell is already marked, branch and cell stay as the chart before left them.
void placeZiWei(ChartModel& chart, int dayPosition);
