// The palaces: the Life Palace and the twelve names, the Body Palace, the palace stems, the five-element
// bureau.
#pragma once

#include "chart/chart_model.h"

// Each reads the chart's lunar month, double-hour and year digit and writes the fields that its name tells.
void placeLifePalace(ChartModel& chart);
void placeBodyPalace(ChartModel& chart);
void placePalaceStems(ChartModel& chart);

// Needs the Life Palace and the stems: it also puts the element above the stem of the Life Palace's cell.
void placeElement(ChartModel& chart);
