#include "display/lbl_cover.h"

#include <QKeyEvent>
#include <QPainter>

#include "style/look.h"

LblCover::LblCover(CellIndex cell, QWidget* parent) : QAbstractButton(parent) {
    setObjectName(QStringLiteral("lblCover(%1)").arg(cell.value()));
    setFocusPolicy(cell == CellIndex{0} ? Qt::StrongFocus : Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
}

void LblCover::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    update();
    emit pointedAt();
}

void LblCover::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    update();
    emit left();
}

void LblCover::focusInEvent(QFocusEvent* event) {
    QAbstractButton::focusInEvent(event);
    emit focused();
    emit pointedAt();
}

void LblCover::focusOutEvent(QFocusEvent* event) {
    QAbstractButton::focusOutEvent(event);
    emit left();
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
            if (!event->isAutoRepeat()) click();
            return;
        default:
            QAbstractButton::keyPressEvent(event);
    }
}

void LblCover::paintEvent(QPaintEvent*) {
    const bool hovered = underMouse() && isEnabled();
    if (!hovered && !hasFocus()) return;
    QPainter painter{this};
    if (hovered) painter.fillRect(rect().adjusted(1, 1, -1, -1), QColor{13, 36, 166, 14});
    if (!hasFocus()) return;
    painter.setPen(QPen{look::blue, 2});
    painter.drawRect(
        rect().adjusted(1, 1, -1, -1));  // clear of the letters, which begin right below the edge
}
