// The stars and the four transformations that depend on the stem of the year.
#pragma once

#include "chart/chart_model.h"

// By the chart's year digit and its recorded star cells; needs every other star placed. All are flags.
void placeYearStemStars(ChartModel& chart);
