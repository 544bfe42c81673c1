// Printing of an analysis.
#pragma once

#include <QTextDocument>
#include <vector>

#include "interpret/text_run.h"

class QPrinter;
class QWidget;

// Opens the print dialog and prints the characters from `start` up to `end`, or all if these are equal, in
// the runs' own font sizes. Errors are not reported.
void printAnalysis(const std::vector<TextRun>& runs, int start, int end, QWidget* parent);

// Prints the text without page breaks inside a paragraph that fits on a page, or before a details line.
void printOnPaper(const QTextDocument& text, QPrinter& printer);
