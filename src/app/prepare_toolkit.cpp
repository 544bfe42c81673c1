#include "app/prepare_toolkit.h"

#include <QApplication>
#include <QPixmapCache>

#include "app/press_filter.h"
#include "display/chart_accessibility.h"
#include "style/desktop_style.h"
#include "style/look.h"

void prepareToolkit() {
    QApplication::setApplicationName(QStringLiteral("palace-lantern"));
    QApplication::setApplicationVersion(QStringLiteral(PALACE_LANTERN_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("palace-lantern"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // Else the style caches a pixmap of every scroll bar, which differs with the length of the text.
    QPixmapCache::setCacheLimit(0);
    QApplication::setStyle(new DesktopStyle);
    QApplication::setFont(look::textFont(QApplication::font()));
    QApplication::setWindowIcon(look::productIcon());
    qApp->installEventFilter(new PressFilter{qApp});
    installChartAccessibility();
}
