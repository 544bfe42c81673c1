// Composes the analysis of a palace from the palace name in its cell, the Body Palace's cell and the recorded
// cells of the stars. Flags and captions of stars play no part.
#pragma once

#include <vector>

#include "chart/chart_model.h"
#include "interpret/text_run.h"

// The introduction with which an analysis begins.
TextRun introRun();

// The runs of one palace, without the introduction: heading and description, the details line, the Body
// Palace, and a paragraph for each star with texts. A cell outside 0..11 has no runs; an unknown palace name
// gives neither description nor stars.
std::vector<TextRun> composePalaceAnalysis(const ChartModel& chart, int cell);

// The runs of all twelve palaces in the order of the cells, each followed by two more line breaks.
std::vector<TextRun> composeAllPalaces(const ChartModel& chart);
