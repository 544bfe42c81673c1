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
    // Else the toolkit keeps a picture of each scroll bar that it draws, and every text has one of its own
    // length.
    QPixmapCache::setCacheLimit(0);
    QApplication::setStyle(new DesktopStyle);
    QApplication::setFont(look::textFont(QApplication::font()));
    QApplication::setWindowIcon(look::productIcon());
    qApp->installEventFilter(new PressFilter{qApp});
    installChartAccessibility();
}
