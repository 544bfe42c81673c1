// Palace Lantern: casts a Zi Wei Dou Shu birth chart for one person and explains it in English.

#include <QApplication>
#include <QPixmapCache>

#include "app/application.h"
#include "app/required_file.h"
#include "app/single_instance.h"
#include "display/chart_accessibility.h"
#include "input/list_accessibility.h"
#include "style/link_label.h"
#include "style/look.h"
#include "style/message.h"

int main(int argc, char* argv[]) {
    QApplication toolkit{argc, argv};
    QApplication::setApplicationName(QStringLiteral("palace-lantern"));
    QApplication::setDesktopFileName(QStringLiteral("palace-lantern"));
    QApplication::setQuitOnLastWindowClosed(false);
    // Else the toolkit keeps a picture of each scroll bar that it draws, and every text has one of its own
    // length.
    QPixmapCache::setCacheLimit(0);
    QApplication::setFont(look::textFont(QApplication::font()));
    QApplication::setPalette(look::legibleSelection(QApplication::palette()));
    QApplication::setWindowIcon(look::productIcon());

    installListAccessibility();
    installChartAccessibility();
    installLinkAccessibility();

    const SingleInstance instance;
    if (instance.anotherIsRunning()) {
        showMessage(nullptr, QMessageBox::Information, QStringLiteral("Application is already running"));
        return 0;
    }
    if (!requiredFileIsPresent()) return 1;
    Application application;
    application.start();
    return QApplication::exec();
}
