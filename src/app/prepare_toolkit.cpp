#include "app/prepare_toolkit.h"

#include <QEvent>
#include <QFontDatabase>
#include <QPixmapCache>
#include <QThread>

#include "display/chart_accessibility.h"
#include "style/desktop_style.h"
#include "style/look.h"
#include "style/platform.h"

namespace {

// The program's typeface in the size of the desktop's font, which can change.
void useDesktopFont() {
    const QFont font = look::textFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
    if (font != QApplication::font()) QApplication::setFont(font);
}

}  // namespace

bool Toolkit::notify(QObject* receiver, QEvent* event) {
    if (presses_.discards(receiver, event)) return true;
    if (event->type() == QEvent::ThemeChange) useDesktopFont();
    // Qt 6.4 under Wayland: another thread may still be in the frame callback of a window that has been
    // hidden. A dialog is destroyed right after that.
    if (event->type() == QEvent::Hide && receiver->isWindowType() && !placesAreKnown()) QThread::msleep(10);
    return QApplication::notify(receiver, event);
}

void prepareToolkit() {
    QApplication::setApplicationName(QStringLiteral("palace-lantern"));
    QApplication::setApplicationVersion(QStringLiteral(PALACE_LANTERN_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("palace-lantern"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // Otherwise the style would cache a new pixmap of the scroll bar for every length of text.
    QPixmapCache::setCacheLimit(0);
    QApplication::setStyle(new DesktopStyle);
    useDesktopFont();
    QApplication::setWindowIcon(look::productIcon({16, 48}));  // each window gets all of them
    installChartAccessibility();
}
