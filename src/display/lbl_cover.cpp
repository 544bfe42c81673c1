#include "display/lbl_cover.h"

#include <QPainter>

#include "style/look.h"

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
