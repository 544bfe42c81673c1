#include "help/banner_link.h"

#include <QPainter>

#include "help/help_menu.h"
#include "style/desktop_style.h"
#include "style/look.h"

BannerLink::BannerLink(const QFont& font, QWidget* form, QWidget* parent) : PressArea(parent) {
    named(this, "lblBanner");
    setText(look::productName());
    setAccessibleDescription(QStringLiteral("Opens the home page"));
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

void BannerLink::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setPen(look::linkColour(*this));
    painter.drawText(rect(), Qt::AlignCenter, text());
    if (hasFocus()) DesktopStyle::drawFocusFrame(painter, rect(), palette());
}
