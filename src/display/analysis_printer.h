// Puts an analysis on paper.
#pragma once

#include <QTextDocument>
#include <memory>

class QPrinter;
class QTextEdit;
class QWidget;

// Asks for a printer and prints the selection, if there is one, or else the whole text. A cancel and every
// error are passed over in silence.
void printAnalysis(const QTextEdit& text, QWidget* parent);

// Prints the text with decent margins; a paragraph that fits on a page is not torn, and a line that announces
// the next paragraph goes with it.
void printOnPaper(const QTextDocument& text, QPrinter& printer);

// The part of the text that is to be printed: the selection with its formatting, or all of it.
std::unique_ptr<QTextDocument> printedPart(const QTextEdit& text);
