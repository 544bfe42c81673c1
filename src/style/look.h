// The look that all windows share: one typeface, one set of colours, one measure for places.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>
#include <QWidget>

#include "interpret/text_run.h"

namespace look {

constexpr QColor colourOf(const Rgb& rgb) { return {rgb.red, rgb.green, rgb.blue}; }

// The colours of text, and the light papers on which it is read, whatever the desktop's theme.
inline constexpr QColor blue = colourOf(analysisBlue);
inline constexpr QColor brown = colourOf(analysisBrown);
inline constexpr QColor red = colourOf(analysisRed);
inline constexpr QColor green{0, 96, 40};
inline constexpr QColor ink{32, 28, 26};
inline constexpr QColor quiet{96, 84, 78};
inline constexpr QColor line{186, 164, 140};
inline constexpr QColor paper{255, 252, 245};
inline constexpr QColor titlePaper{250, 243, 230};
inline constexpr QColor ground{240, 231, 214};

// A length in twips as pixels at scale 1: an inch has 1440 twips and 96 pixels.
constexpr double pixels(double twips) { return twips / 15; }

// The font in the typeface for all text: Verdana, or the face that comes closest to it.
QFont textFont(const QFont& like);

// The same at a size in pixels, for text that is drawn to the chart's scale.
QFont chartFont(int pixelSize, bool bold);

// How well one colour can be read on the other, from 1 to 21, as the accessibility guidelines for the web
// (WCAG) reckon it.
double contrast(const QColor& one, const QColor& other);

// The desktop's palette, with other colours for the selection where the desktop's own are hard to read, as white
// on a light blue.
QPalette legibleSelection(const QPalette& desktop);

// The palette for the title of an active QMdiSubWindow, which is white on the highlight colour: with one on which
// white can be read, and a dark shadow.
QPalette legibleTitle(const QPalette& desktop);

// The colour of the focus frame: the highlight colour, or where it does not stand out from what lies beside
// it, the text's.
QColor focusColour(const QPalette& palette);

// Marks text that opens a page: the blue of the headings, or where that can't be read on the ground, the
// desktop's own link colour.
QColor linkColour(const QWidget& on);

// Large and bold, for the product's name inside a window.
QFont titleFont();

// The product's name and its mark.
QString productName();
QIcon productIcon();

}  // namespace look
