// The minor stars that depend on the double-hour, the lunar month and the day of birth.
#pragma once

#include "chart/chart_model.h"

// Wen Chang, Wen Qu, Di Jie, Di Kong, Tai Fu and Feng Gao, by the chart's double-hour.
void placeHourStars(ChartModel& chart);

// Zuo Fu, You Bi, Tian Yao and Tian Xing, by the chart's lunar month; then Jie Shen, Tian Wu, the month star
// Tian Yue and Yin Sha: flags, of which none is cleared, and which the lunar month 0 does not have.
void placeMonthStars(ChartModel& chart);

// San Tai, Ba Zuo, En Guang and Tian Gui, by the solar day (1..31) and the cells of Zuo Fu, You Bi, Wen Chang
// and Wen Qu.
void placeDayStars(ChartModel& chart, int day);
