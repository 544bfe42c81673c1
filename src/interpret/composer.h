// Puts the interpretation texts together for a palace. It reads the chart alone: the palace name that stands
// in a cell, the Body Palace's cell and the recorded cells of the stars, never what is drawn.
#pragma once

#include <vector>

#include "chart/chart_model.h"
#include "interpret/text_run.h"

// The introduction, for the top of an analysis.
TextRun introRun();

// The runs of one palace: heading and description, the details line, the Body Palace, and a paragraph for
// each star with texts that stands there. A cell outside 0..11 yields no runs. A palace name that is not
// known yields neither palace part nor star paragraphs.
std::vector<TextRun> composePalaceAnalysis(const ChartModel& chart, int cell);

// The runs of all twelve palaces in the order of the cells, each followed by two empty lines. The
// introduction is not among them.
std::vector<TextRun> composeAllPalaces(const ChartModel& chart);
