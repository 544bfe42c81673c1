#include "style/desktop_style.h"

#include <QStyleOptionTitleBar>

#include "style/look.h"

int DesktopStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* more) const {
    switch (hint) {
        // Lists drop down below their box and scroll: 43 years may be more than a screen holds.
        case SH_ComboBox_Popup:
        // QMenuBar of Qt 6.4 keeps the keyboard unseen after Escape, or after Alt alone.
        case SH_MenuBar_AltKeyNavigation:
            return 0;
        default:
            return QProxyStyle::styleHint(hint, option, widget, more);
    }
}

// The title of an active window within a window: QFusionStyle of Qt 6.4 writes it in white on the colour of
// what is selected, with a shadow in the colour of text, whatever these are on the desktop.
void DesktopStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (control != CC_TitleBar || title == nullptr || !(title->titleBarState & State_Active))
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    QStyleOptionTitleBar legible = *title;
    legible.palette = look::legibleTitle(title->palette);
    QProxyStyle::drawComplexControl(control, &legible, painter, widget);
}
