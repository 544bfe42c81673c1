// The placement rules, one file each, in the order in which the driver follows them: a rule counts on what
// those before it have written into the chart.
#pragma once

#include "chart/chart_model.h"

// palaces.cpp: by the lunar month, the double-hour and the last digit of the year. The element also stands
// above the stem of the Life Palace's cell.
void placeLifePalace(ChartModel& chart);
void placeBodyPalace(ChartModel& chart);
void placePalaceStems(ChartModel& chart);
void placeElement(ChartModel& chart);

// zi_wei.cpp: by the element and the day's list position (0..30, the solar day as entered). Zi Wei goes into
// the cell whose branch text is exactly the branch that was found. On a 31st, or where that cell is already
// marked, branch and cell stay as the chart before left them.
void placeZiWei(ChartModel& chart, int dayPosition);

// major_stars.cpp: the rest of the Zi Wei group, counted backwards from Zi Wei, and the Tian Fu group,
// counted forwards from the mirror of Zi Wei's cell.
void placeMajorStars(ChartModel& chart);

// minor_stars.cpp: by the double-hour, by the lunar month, and by the solar day (1..31) from the cells of
// Wen Chang, Wen Qu, Zuo Fu and You Bi. Lunar month 0 has no month stars that are flags.
void placeHourStars(ChartModel& chart);
void placeMonthStars(ChartModel& chart);
void placeDayStars(ChartModel& chart, int day);

// year_stem_stars.cpp: by the last digit of the year. The transformations mark the cells of other stars.
void placeYearStemStars(ChartModel& chart);
