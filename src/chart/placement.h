// The placement rules, in the order in which generateChart() calls them: a rule needs what those before it
// have written into the chart.
#pragma once

#include "chart/chart_model.h"

// palaces.cpp: by the lunar month, the double-hour and the last digit of the year. The element also stands
// above the stem of the Life Palace's cell.
void placeLifePalace(ChartModel& chart);
void placeBodyPalace(ChartModel& chart);
void placePalaceStems(ChartModel& chart);
void placeElement(ChartModel& chart);

// zi_wei.cpp: by the element and the list position (0..30) of the solar day. Zi Wei goes into the cell whose
// label shows only the branch that was found. On a 31st the branch is that of the previous chart. Where the
// label already shows "Zi Wei" above the branch, the cell of the previous chart stays.
void placeZiWei(ChartModel& chart, int dayPosition);

// major_stars.cpp: the rest of the Zi Wei group, counted backwards from Zi Wei, and the Tian Fu group,
// counted forwards from the mirror of Zi Wei's cell.
void placeMajorStars(ChartModel& chart);

// minor_stars.cpp: by the double-hour, by the lunar month, and by the solar day (1..31) from the cells of
// Wen Chang, Wen Qu, Zuo Fu and You Bi. Lunar month 0 places no month stars that are flags.
void placeHourStars(ChartModel& chart);
void placeMonthStars(ChartModel& chart);
void placeDayStars(ChartModel& chart, int day);

// year_stem_stars.cpp: by the last digit of the year. The transformations mark the cells of other stars.
void placeYearStemStars(ChartModel& chart);
