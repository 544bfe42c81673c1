#include "style/look.h"

#include <QFontDatabase>
#include <QIcon>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace look {

namespace {

// Only an installed family: looking for a missing one takes time at every font size.
QStringList families() {
    static const bool hasVerdana = QFontDatabase::hasFamily(QStringLiteral("Verdana"));
    return {hasVerdana ? QStringLiteral("Verdana") : QStringLiteral("DejaVu Sans")};
}

constexpr double legible = 4.5;  // the contrast that WCAG demands of text

// The relative luminance of WCAG, from 0 for black to 1 for white.
double luminance(const QColor& colour) {
    const auto part = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

class Mark : public QLabel {
  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter{this};
        const double dots = width() * devicePixelRatioF();
        // Only one size: reading them all would slow the start down.
        productIcon({dots <= 48 ? 48 : dots <= 128 ? 128 : 256}).paint(&painter, rect());
    }
};

}  // namespace

QFont textFont(const QFont& like) {
    QFont font = like;
    font.setFamilies(families());
    return font;
}

// Without horizontal hinting, so that text widths are in proportion and the labels fit at every scale.
QFont chartFont(int pixelSize, bool bold) {
    QFont font = textFont(QFont{});
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor focusColour(const QPalette& palette) {
    constexpr double distinct = 3;  // the contrast that WCAG demands of controls
    const QColor highlight = palette.color(QPalette::Highlight);
    for (const auto beside : {QPalette::Window, QPalette::Base, QPalette::Button}) {
        if (contrast(highlight, palette.color(beside)) < distinct) return palette.color(QPalette::WindowText);
    }
    return highlight;
}

QColor linkColour(const QWidget& on) {
    const QPalette& palette = on.palette();
    const QColor behind = palette.color(QPalette::Window);
    for (const QColor& colour : {blue, palette.color(QPalette::Link)}) {
        if (contrast(colour, behind) >= legible) return colour;
    }
    return palette.color(QPalette::WindowText);
}

QPalette legibleSelection(const QPalette& desktop) {
    QPalette palette = desktop;
    if (contrast(desktop.color(QPalette::Highlight), desktop.color(QPalette::HighlightedText)) >= legible)
        return palette;
    palette.setColor(QPalette::Highlight, blue);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QPalette legibleTitle(const QPalette& desktop) {
    QPalette palette = desktop;
    if (contrast(desktop.color(QPalette::Highlight), Qt::white) < legible)
        palette.setColor(QPalette::Highlight, blue);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    if (luminance(desktop.color(QPalette::Text)) > 0.18) palette.setColor(QPalette::Text, ink);
    return palette;
}

QFont titleFont() {
    QFont font;
    font.setPointSizeF(QFontInfo{font}.pointSizeF() * 1.7);  // the desktop's font may be set in pixels
    font.setBold(true);
    return font;
}

QString productName() { return QStringLiteral("Palace Lantern"); }

QIcon productIcon(std::initializer_list<int> sizes) {
    QIcon icon;
    for (const int size : sizes)
        icon.addFile(QStringLiteral(":/icons/palace-lantern-%1.png").arg(size), QSize{size, size});
    return icon;
}

QLabel* newMark(int size) {
    auto* mark = new Mark;
    mark->setFixedSize(size, size);
    mark->setAccessibleName(QStringLiteral("Lantern"));
    return mark;
}

}  // namespace look
