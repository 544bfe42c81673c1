#include "display/elided_label.h"

#include <QPainter>

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void ElidedLabel::paintEvent(QPaintEvent*) {
    // Measuring a very long text takes time, and no character is narrower than a pixel.
    QString line = text().left(width());
    for (QChar& character : line) {
        if (!character.isPrint()) character = QLatin1Char(' ');
    }
    QPainter painter{this};
    const QString shown = fontMetrics().elidedText(line, Qt::ElideRight, contentsRect().width());
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine, shown);
}
