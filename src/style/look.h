// The look that all windows share: one typeface, one set of colours, one measure for places.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>
#include <QWidget>

namespace look {

// The colours come from the analysis; the papers are the light grounds on which they are read, whatever the
// desktop's theme.
inline const QColor blue{13, 36, 166};
inline const QColor brown{101, 14, 14};
inline const QColor red{128, 0, 0};
inline const QColor green{0, 96, 40};
inline const QColor ink{32, 28, 26};
inline const QColor quiet{96, 84, 78};
inline const QColor line{186, 164, 140};
inline const QColor paper{255, 252, 245};
inline const QColor titlePaper{250, 243, 230};
inline const QColor ground{240, 231, 214};

inline constexpr double twipsPerPixel = 15.0;  // 1440 twips and 96 pixels an inch

// The typeface for all text: Verdana, or the face that comes closest to it.
QFont textFont(const QFont& like);

// The same at a size in pixels, for text that is drawn to the chart's scale.
QFont chartFont(int pixelSize, bool bold);

// How well one colour can be read on the other, from 1 to 21, as the accessibility guidelines for the web
// (WCAG) reckon it.
double contrast(const QColor& one, const QColor& other);

// To be laid over the desktop's palette: colours for what is selected that can be read, nothing where the
// desktop's own can. Some desktops put white on a light blue.
QPalette legibleSelection(const QPalette& desktop);

// The same for a window within a window, whose title the toolkit writes in white on the colour of what is
// selected, whatever that is; nothing where white can be read on it.
QPalette legibleTitle(const QPalette& desktop);

// Marks text that opens a page: the blue of the headings, or where that can't be read on the ground, the
// desktop's own link colour.
QColor linkColour(const QWidget& on);

// The product's name and its mark.
QString productName();
QIcon productIcon();

}  // namespace look
