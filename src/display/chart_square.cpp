#include "display/chart_square.h"

#include <QPainter>

#include "style/look.h"

// One pixel larger than the square: at a device pixel ratio of 1.5, the last borders reach beyond it.
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
    // In whole device pixels, so that all borders have the same width.
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
        centre.topLeft() + QPoint{scale_.pixels(centreRule.x1()), scale_.pixels(centreRule.y1())};
    painter.drawLine(rule, rule + QPoint{scale_.pixels(centreRule.dx()), 0});
}

LblCover::LblCover(CellIndex cell, QWidget* parent) : PressArea(parent) {
    named(this, "lblCover(" + std::to_string(cell.value()) + ")");
    setFocusPolicy(cell == CellIndex{0} ? Qt::StrongFocus : Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
}

// The focus frame is thinner at the top, where text begins right below the border.
void LblCover::paintEvent(QPaintEvent*) {
    if (!marked_) return;
    QPainter painter{this};
    QColor tint = look::blue;
    tint.setAlpha(14);
    if (underMouse()) painter.fillRect(rect().adjusted(1, 1, -1, -1), tint);
    if (!hasFocus()) return;
    painter.setPen(look::blue);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.drawRect(rect().adjusted(1, 0, -2, -2));
}
