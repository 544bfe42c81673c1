#include "display/lbl_cover.h"

#include <QKeyEvent>
#include <QPainter>

#include "style/look.h"

LblCover::LblCover(CellIndex cell, QWidget* parent) : PressArea(parent) {
    named(this, "lblCover(" + std::to_string(cell.value()) + ")");
    setFocusPolicy(cell == CellIndex{0} ? Qt::StrongFocus : Qt::ClickFocus);
    setCursor(Qt::PointingHandCursor);
}

bool LblCover::event(QEvent* event) {
    const bool handled = PressArea::event(event);
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) {
        update();
        emit pointerChanged();
    } else if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        emit focusChanged(static_cast<QFocusEvent*>(event)->reason());
    }
    return handled;
}

void LblCover::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            return emit stepWanted({-1, 0});
        case Qt::Key_Right:
            return emit stepWanted({1, 0});
        case Qt::Key_Up:
            return emit stepWanted({0, -1});
        case Qt::Key_Down:
            return emit stepWanted({0, 1});
        default:
            PressArea::keyPressEvent(event);
    }
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
