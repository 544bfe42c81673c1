#include "style/link_label.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include "style/look.h"

namespace {

class LinkInterface : public QAccessibleWidget {
  public:
    explicit LinkInterface(LinkLabel* link) : QAccessibleWidget(link, QAccessible::Link, link->text()) {}
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& action) override {
        auto* link = static_cast<LinkLabel*>(widget());
        if (action == setFocusAction()) link->setFocus();
        // Later, so that who asks over the bus is answered before the page opens.
        if (action == pressAction())
            QMetaObject::invokeMethod(link, &LinkLabel::clicked, Qt::QueuedConnection);
    }
};

QAccessibleInterface* createInterface(const QString&, QObject* object) {
    auto* link = qobject_cast<LinkLabel*>(object);
    return link == nullptr ? nullptr : new LinkInterface{link};
}

}  // namespace

void installLinkAccessibility() { QAccessible::installFactory(createInterface); }

LinkLabel::LinkLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
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

// Not before it is shown: the toolkit makes a whole document of a text that can take the focus.
void LinkLabel::showEvent(QShowEvent* event) {
    setFocusPolicy(Qt::StrongFocus);
    QLabel::showEvent(event);
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
