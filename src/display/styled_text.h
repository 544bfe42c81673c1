// Runs of an analysis as a styled text.
#pragma once

#include <QTextDocument>
#include <vector>

#include "interpret/text_run.h"

// Puts the runs into the document in place of what is there, each in its own style, its letters enlarged to
// so many per cent of their size.
void fillWithRuns(QTextDocument& document, const std::vector<TextRun>& runs, int percent);
