#include "display/lbl_cover.h"

#include <QKeyEvent>
#include <QPainter>

#include "style/controls.h"
#include "style/look.h"

LblCover::LblCover(CellIndex cell, QWidget* parent) : QAbstractButton(parent) {
    named(this, "lblCover(" + std::to_string(cell.value()) + ")");
    setFocusPolicy(cell == CellIndex{0} ? Qt::StrongFocus : Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
}

void LblCover::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
    emit pointedAtOrLeft();
}

void LblCover::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
    emit pointedAtOrLeft();
}

void LblCover::focusInEvent(QFocusEvent* event) {
    QAbstractButton::focusInEvent(event);
    emit focused(event->reason());
    emit pointedAtOrLeft();
}

void LblCover::focusOutEvent(QFocusEvent* event) {
    QAbstractButton::focusOutEvent(event);
    emit pointedAtOrLeft();
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
        case Qt::Key_Return:
        case Qt::Key_Enter:
            click();
            return;
        default:
            QAbstractButton::keyPressEvent(event);
    }
}

// The frame of the focus is thin above, where the letters begin right below the edge.
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
