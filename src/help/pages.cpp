#include "help/pages.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>

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
    return beside.exists() ? beside : QDir{program.filePath(QStringLiteral(PALACE_LANTERN_HELP_FOLDER))};
}

// xdg-open tells within seconds that it found no browser; a process that ends later was the browser.
constexpr int patience = 10'000;  // milliseconds

// A dialog may have been opened meanwhile, and would block a message behind it.
void tellAddress(const QUrl& address, QWidget* asker) {
    QWidget* dialog = QApplication::activeModalWidget();
    showMessage(dialog != nullptr ? dialog : asker, QMessageBox::Information,
                QStringLiteral("No browser could be opened. You find the page here:\n%1")
                    .arg(address.isLocalFile() ? QDir::toNativeSeparators(address.toLocalFile())
                                               : address.toString()));
}

}  // namespace

QUrl addressOf(WebPage page) {
    const QString base = QStringLiteral(PALACE_LANTERN_WEB_BASE);
    if (base.isEmpty())
        return QUrl::fromLocalFile(QDir::cleanPath(helpFolder().absoluteFilePath(fileNameOf(page))));
    return QUrl{base.endsWith(QLatin1Char('/')) ? base : base + QLatin1Char('/')}.resolved(
        QUrl{fileNameOf(page)});
}

// By xdg-open, which tells whether a browser took the page. Qt 6.8 still: QDesktopServices, which opens it
// where there is no xdg-open, does not tell. The process has no parent, because it may become the browser,
// which outlives the program. The connections are queued, so that no message runs inside the process's own
// signals.
void openPage(WebPage page, QWidget* asker) {
    const QUrl address = addressOf(page);
    auto* opener = new QProcess;
    QElapsedTimer time;
    time.start();
    const auto openOtherwise = [=](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart && !QDesktopServices::openUrl(address))
            tellAddress(address, asker);
    };
    const auto tellFailure = [=](int code) {
        if (code != 0 && time.elapsed() < patience) tellAddress(address, asker);
    };
    QObject::connect(opener, &QProcess::errorOccurred, asker, openOtherwise, Qt::QueuedConnection);
    QObject::connect(opener, &QProcess::finished, asker, tellFailure, Qt::QueuedConnection);
    QObject::connect(opener, &QProcess::errorOccurred, opener, &QObject::deleteLater);
    QObject::connect(opener, &QProcess::finished, opener, &QObject::deleteLater);
    opener->setStandardOutputFile(QProcess::nullDevice());
    opener->setStandardErrorFile(QProcess::nullDevice());
    opener->start(QStringLiteral("xdg-open"), {address.toString(QUrl::FullyEncoded)});
}
