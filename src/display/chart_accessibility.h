// How the chart is told to a screen reader.
#pragma once

#include <QString>

#include "chart/chart_model.h"

// A palace cell as a sentence: "Wealth palace, Yin, stem Bing: Zi Wei, Tian Fu, Hua Lu; Body Palace".
QString spokenCell(const ChartModel& chart, CellIndex cell);

// Lets a screen reader pass over the bare labels of the cells: each cell's cover speaks for all of them.
void installChartAccessibility();
