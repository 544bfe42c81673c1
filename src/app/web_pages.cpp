#include "app/web_pages.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>

#include "style/message.h"

namespace {

QString fileNameOf(WebPage page) {
    switch (page) {
        case WebPage::onlineHelp:
            return QStringLiteral("help.html");
        case WebPage::download:
            return QStringLiteral("download.html");
        case WebPage::home:
            break;
    }
    return QStringLiteral("index.html");
}

// Beside the program, or where an installed program keeps its data.
QDir helpFolder() {
    const QDir program{QCoreApplication::applicationDirPath()};
    const QDir beside{program.filePath(QStringLiteral("help"))};
    return beside.exists() ? beside
                           : QDir{program.filePath(QStringLiteral("../../share/palace-lantern/help"))};
}

}  // namespace

QUrl addressOf(WebPage page) {
    const QString base = QStringLiteral(PALACE_LANTERN_WEB_BASE);
    if (base.isEmpty())
        return QUrl::fromLocalFile(QDir::cleanPath(helpFolder().absoluteFilePath(fileNameOf(page))));
    return QUrl{base.endsWith(QLatin1Char('/')) ? base : base + QLatin1Char('/')}.resolved(
        QUrl{fileNameOf(page)});
}

void openPage(WebPage page, QWidget* parent) {
    const QUrl address = addressOf(page);
    if (QDesktopServices::openUrl(address)) return;
    showMessage(parent, QMessageBox::Information,
                QStringLiteral("No browser could be opened. You find the page here:\n%1")
                    .arg(address.isLocalFile() ? QDir::toNativeSeparators(address.toLocalFile())
                                               : address.toString()));
}
