#include "help/banner_link.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include "help/pages.h"
#include "style/controls.h"
#include "style/look.h"

BannerLink::BannerLink(const QFont& font, QWidget* form, QWidget* parent) : QAbstractButton(parent) {
    named(this, "lblBanner");
    setText(look::productName());
    setAccessibleDescription(tr("Opens the home page"));
    setFont(font);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connectControl(this, &QAbstractButton::clicked, form,
                   [](QWidget* asker) { openPage(WebPage::home, asker); });
}

QSize BannerLink::sizeHint() const {
    constexpr QSize spare{6, 6};
    return fontMetrics().size(Qt::TextSingleLine, text()) + spare;
}

void BannerLink::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    enter ? click() : QAbstractButton::keyPressEvent(event);
}

void BannerLink::paintEvent(QPaintEvent*) {
    QStylePainter painter{this};
    painter.setPen(look::linkColour(*this));
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (!hasFocus()) return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(QPalette::Window);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}
