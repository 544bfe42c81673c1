// The look that all windows share: typeface, colours, and twips as the unit of length.
#pragma once

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QString>
#include <initializer_list>

#include "interpret/text_run.h"

namespace look {

constexpr QColor colourOf(const Rgb& rgb) { return {rgb.red, rgb.green, rgb.blue}; }

// The colours of text, and of its light backgrounds, whatever the desktop's theme.
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

// Pixels at scale 1, with 1440 twips and 96 pixels to the inch.
constexpr double pixels(double twips) { return twips / 15; }

// The font with Verdana as its family, or DejaVu Sans where that is not installed.
QFont textFont(const QFont& like);

// A font of that family for text that scales with the chart.
QFont chartFont(int pixelSize, bool bold);

// The contrast ratio of the Web Content Accessibility Guidelines (WCAG), from 1 to 21.
double contrast(const QColor& one, const QColor& other);

// The desktop's palette, with other colours for the selection where its own have too little contrast.
QPalette legibleSelection(const QPalette& desktop);

// The palette for the title of an active QMdiSubWindow: a highlight colour on which white is legible, and a
// dark text colour for the shadow.
QPalette legibleTitle(const QPalette& desktop);

// The colour of the focus frame: the highlight or, with too little contrast to controls, the text colour.
QColor focusColour(const QPalette& palette);

// The colour of a link on the widget: blue or, with too little contrast, the desktop's link or text colour.
QColor linkColour(const QWidget& on);

// Large and bold, for the product's name in a window.
QFont titleFont();

QString productName();
QIcon productIcon(std::initializer_list<int> sizes);

// A label with the program's icon in so many pixels, sharp at every device pixel ratio.
QLabel* newMark(int size);

}  // namespace look
