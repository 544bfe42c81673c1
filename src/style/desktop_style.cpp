#include "style/desktop_style.h"

#include <QPainter>
#include <QStyleOption>

#include "style/look.h"

void DesktopStyle::drawFocusFrame(QPainter& painter, const QRect& rect, const QPalette& palette) {
    constexpr qreal width = 2, radius = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen{look::focusColour(palette), width});
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF{rect}.adjusted(1, 1, -1, -1), radius, radius);
    painter.restore();
}

// Called again whenever the desktop's palette changes.
void DesktopStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    palette = look::legibleSelection(palette);
}

int DesktopStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* more) const {
    // Lists drop down below their box and scroll: 43 years may be higher than the screen.
    if (hint == SH_ComboBox_Popup) return 0;
    // Qt 6.8 still: after Escape, or after Alt alone, QMenuBar keeps the focus without showing it.
    if (hint == SH_MenuBar_AltKeyNavigation) return 0;
    return QProxyStyle::styleHint(hint, option, widget, more);
}

// Qt 6.8 still: QFusionStyle draws the title of an active QMdiSubWindow in white on the highlight colour,
// with a shadow in the text colour, even where that is illegible.
void DesktopStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (control == CC_TitleBar && title != nullptr && (title->titleBarState & State_Active)) {
        QStyleOptionTitleBar legible = *title;
        legible.palette = look::legibleTitle(title->palette);
        return QProxyStyle::drawComplexControl(control, &legible, painter, widget);
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && (option->state & State_HasFocus))
        drawFocusFrame(*painter, option->rect, option->palette);
}

void DesktopStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButton && button != nullptr && (option->state & State_HasFocus)) {
        QStyleOptionButton bare = *button;
        bare.state &= ~State_HasFocus;  // instead of the style's own focus frame
        QProxyStyle::drawControl(element, &bare, painter, widget);
        return drawFocusFrame(*painter, option->rect, option->palette);
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    // Qt 6.8 still: QFusionStyle draws the line below a menu bar with gaps at a fractional pixel ratio.
    const bool ofMenuBar = element == CE_MenuBarItem || element == CE_MenuBarEmptyArea;
    if (ofMenuBar && baseStyle()->name() == QStringLiteral("fusion")) {
        const QColor ground = option->palette.color(QPalette::Window);
        const QRect line{option->rect.bottomLeft(), QSize{option->rect.width(), 1}};
        if (!(option->state & State_Selected)) painter->fillRect(line.adjusted(0, -1, 0, 0), ground);
        painter->fillRect(line, ground.darker(120));
    }
}

void DesktopStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    const bool framed = element == PE_PanelLineEdit && frame != nullptr && frame->lineWidth > 0;
    if (framed && (option->state & State_HasFocus)) drawFocusFrame(*painter, option->rect, option->palette);
}
