#include "display/chart_square.h"

#include <QPainter>

#include "style/look.h"

ChartSquare::ChartSquare(QWidget* parent) : QWidget(parent) {}

// One pixel larger than the square: at a device pixel ratio of 1.5, the last lines reach beyond it.
void ChartSquare::setScale(ChartScale scale) {
    scale_ = scale;
    resize(scale.squareSize() + QSize{1, 1});
    update();
}

void ChartSquare::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    const QRect centre = scale_.centreFrame();
    painter.fillRect(QRect{QPoint{}, scale_.squareSize()}, look::paper);
    painter.fillRect(centre, look::titlePaper);
    // In whole device pixels, so that all lines are equally wide.
    const int dots = qMax(1, qRound(devicePixelRatioF()));
    QPen pen{look::line, static_cast<qreal>(dots)};
    pen.setCosmetic(true);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.translate(QPointF{0.5, 0.5} * dots / devicePixelRatioF());  // half a line's width
    for (const CellIndex cell : allCells) painter.drawRect(scale_.cellFrame(cell).adjusted(0, 0, -1, -1));
    pen.setColor(look::brown);
    painter.setPen(pen);
    const QPoint rule =
        centre.topLeft() + QPoint{scale_.pixels(centreRule.left), scale_.pixels(centreRule.top)};
    painter.drawLine(rule, rule + QPoint{scale_.pixels(centreRule.width), 0});
}
