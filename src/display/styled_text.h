// The runs of an analysis as a QTextDocument.
#pragma once

#include <QTextDocument>
#include <vector>

#include "interpret/text_run.h"

// Replaces the document's content by the runs, each in its own style, at a percentage of its font size.
void fillWithRuns(QTextDocument& document, const std::vector<TextRun>& runs, int percent);
