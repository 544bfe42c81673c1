#include "display/lbl_cover.h"

#include <QKeyEvent>
#include <QPainter>

#include "style/look.h"

LblCover::LblCover(CellIndex cell, QWidget* parent) : PressArea(parent) {
    named(this, "lblCover(" + std::to_string(cell.value()) + ")");
    setFocusPolicy(cell == CellIndex{0} ? Qt::StrongFocus : Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
}

void LblCover::enterEvent(QEnterEvent* event) {
    PressArea::enterEvent(event);
    update();
    emit pointerChanged();
}

void LblCover::leaveEvent(QEvent* event) {
    PressArea::leaveEvent(event);
    update();
    emit pointerChanged();
}

void LblCover::focusInEvent(QFocusEvent* event) {
    PressArea::focusInEvent(event);
    emit focusChanged(event->reason());
}

void LblCover::focusOutEvent(QFocusEvent* event) {
    PressArea::focusOutEvent(event);
    emit focusChanged(event->reason());
}

void LblCover::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            emit stepWanted(-1, 0);
            return;
        case Qt::Key_Right:
            emit stepWanted(1, 0);
            return;
        case Qt::Key_Up:
            emit stepWanted(0, -1);
            return;
        case Qt::Key_Down:
            emit stepWanted(0, 1);
            return;
        default:
            PressArea::keyPressEvent(event);
    }
}

// The focus frame is thin at the top, where the letters begin right below the edge.
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
