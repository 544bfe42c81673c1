// Puts an analysis on paper.
#pragma once

#include <QTextDocument>
#include <vector>

#include "interpret/text_run.h"

class QPrinter;
class QWidget;

// Asks for a printer and prints the characters from `start` up to `end`, or the whole text where these are
// the same, in the size that the runs have. A cancel and every error are passed over in silence.
void printAnalysis(const std::vector<TextRun>& runs, int start, int end, QWidget* parent);

// Prints the text with decent margins; a paragraph that fits on a page is not torn, and a line that ends what
// is above it stays there.
void printOnPaper(const QTextDocument& text, QPrinter& printer);
