#include "style/link_label.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include "style/look.h"

LinkLabel::LinkLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setMargin(3);
    takeLinkColour();
}

// The label's own colour changes its palette too, and must not be taken for a change of the desktop's.
void LinkLabel::takeLinkColour() {
    const QColor colour = look::linkColour(parentWidget() != nullptr ? *parentWidget() : *this);
    if (palette().color(QPalette::WindowText) == colour) return;
    QPalette own;
    own.setColor(QPalette::WindowText, colour);
    setPalette(own);
}

void LinkLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange) takeLinkColour();
    QLabel::changeEvent(event);
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            emit clicked();
            return;
        default:
            QLabel::keyPressEvent(event);
    }
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) emit clicked();
}

void LinkLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus()) return;
    QStylePainter painter{this};
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(QPalette::Window);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}
