// The thirteen major stars that are counted from Zi Wei.
#pragma once

#include "chart/chart_model.h"

// Places the rest of the Zi Wei group, counted backwards from the Zi Wei cell, and the Tian Fu group, counted
// forwards from the mirror of that cell.
void placeMajorStars(ChartModel& chart);
