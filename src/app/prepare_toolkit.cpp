#include "app/prepare_toolkit.h"

#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QPixmapCache>

#include "app/press_filter.h"
#include "display/chart_accessibility.h"
#include "style/desktop_style.h"
#include "style/look.h"

namespace {

// In the desktop's size, which may change while the program runs.
class DesktopFont : public QObject {
  public:
    explicit DesktopFont(QObject* parent) : QObject(parent) { follow(); }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ThemeChange) follow();
        return false;
    }

  private:
    static void follow() {
        const QFont font = look::textFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
        if (font != QApplication::font()) QApplication::setFont(font);
    }
};

}  // namespace

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
    qApp->installEventFilter(new DesktopFont{qApp});
    QApplication::setWindowIcon(look::productIcon());
    qApp->installEventFilter(new PressFilter{qApp});
    installChartAccessibility();
}
