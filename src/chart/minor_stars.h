// The minor stars that depend on the double-hour, the lunar month and the day of birth.
#pragma once

#include "chart/chart_model.h"

// Wen Chang, Wen Qu, Di Jie, Di Kong, Tai Fu and Feng Gao, by the chart's double-hour.
void placeHourStars(ChartModel& chart);

// Zuo Fu, You Bi, Tian Yao and Tian Xing, by the chart's lunar month.
void placeMonthStars(ChartModel& chart);

// Jie Shen, Tian Wu, the month star Tian Yue and Yin Sha: flags, by the chart's lunar month; no flag is
// cleared, and the lunar month 0 sets none.
void raiseMonthFlags(ChartModel& chart);

// San Tai, Ba Zuo, En Guang and Tian Gui, by the solar day (1..31) and the cells of Zuo Fu, You Bi, Wen Chang
// and Wen Qu.
void placeDayStars(ChartModel& chart, int day);
