// The chart in the accessibility tree.
#pragma once

#include <QString>

#include "chart/chart_model.h"

// The name of a palace cell: "Wealth palace, Yin, stem Bing: Zi Wei, Tian Fu, Hua Lu; Body Palace".
QString spokenCell(const ChartModel& chart, CellIndex cell);

// Installs interfaces that leave the labels of the cells out: the name of a cell's cover holds all of them.
void installChartAccessibility();
