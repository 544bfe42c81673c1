#include "help/help_menu.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <array>

#include "help/frmAbout.h"
#include "style/controls.h"
#include "style/message.h"

namespace {

constexpr std::array fileNames{"index.html", "help.html", "download.html"};  // in the order of WebPage

// In a build, beside the program; else where it is installed.
QDir helpFolder() {
    const QDir program{QCoreApplication::applicationDirPath()};
    const QDir beside{program.filePath(QStringLiteral("help"))};
    return beside.exists() ? beside : QDir{program.filePath(QStringLiteral(PALACE_LANTERN_HELP_FOLDER))};
}

// Below PALACE_LANTERN_WEB_BASE or, if that is empty, among the installed help pages.
QUrl addressOf(WebPage page) {
    const QString base = QStringLiteral(PALACE_LANTERN_WEB_BASE);
    const QString file = latin(fileNames[static_cast<std::size_t>(page)]);
    if (base.isEmpty()) return QUrl::fromLocalFile(QDir::cleanPath(helpFolder().absoluteFilePath(file)));
    return QUrl{base.endsWith(QLatin1Char('/')) ? base : base + QLatin1Char('/')}.resolved(QUrl{file});
}

// xdg-open fails within seconds if it finds no browser. A process that ends later was the browser itself.
constexpr int patience = 10'000;  // milliseconds

// A modal dialog that has opened in the meantime becomes the parent; otherwise it would block the message.
void tellAddress(const QUrl& address, QWidget* asker) {
    QWidget* dialog = QApplication::activeModalWidget();
    showMessage(dialog != nullptr ? dialog : asker, QMessageBox::Information,
                QStringLiteral("No browser could be opened. You find the page here:\n%1")
                    .arg(address.isLocalFile() ? QDir::toNativeSeparators(address.toLocalFile())
                                               : address.toString()));
}

}  // namespace

// Qt 6.8 still: QDesktopServices does not report whether a browser opened the page, so xdg-open is tried
// first. The process has no parent, because it may become the browser, which outlives the program. The
// connections are queued, so that no message box runs inside a signal of the process.
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
    // By its path: on Windows, a bare name would be looked for in the current folder, too.
    const QString command = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    opener->start(command, {address.toString(QUrl::FullyEncoded)});
}

QMenu* newHelpMenu(QWidget* form) {
    auto* menu = named(new QMenu{QStringLiteral("&Help"), form}, "mnuHelp");
    const auto addPage = [=](const char* name, const char* caption, WebPage page,
                             const QKeySequence& shortcut = {}) {
        addEntry(
            menu, name, caption, form, [page](QWidget* asker) { openPage(page, asker); }, shortcut);
    };
    addPage("mnuOnline", "&Online Help", WebPage::onlineHelp, QKeySequence::HelpContents);
    addPage("mnuVisit", "&Visit Us Online", WebPage::home);
    addPage("mnuUpdate", "Check for Software &Update", WebPage::download);
    addEntry(menu, "mnuAbout", "&About Software", form, [](QWidget* asker) { frmAbout{asker}.exec(); });
    return menu;
}
