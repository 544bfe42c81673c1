// Runs of an analysis as a styled text.
#pragma once

#include <QTextDocument>
#include <vector>

#include "interpret/text_run.h"

// Replaces the document's content by the runs, each in its own style, at so many per cent of its font size.
void fillWithRuns(QTextDocument& document, const std::vector<TextRun>& runs, int percent);
