#include "style/help_menu.h"

HelpMenu::HelpMenu(QWidget* parent) : QMenu(tr("&Help"), parent) {
    setObjectName(QStringLiteral("mnuHelp"));
    // Queued, here as in the other menus: who chooses an entry over the accessibility bus is answered before
    // the box or the page opens.
    const auto addPage = [this](const char* name, const char* caption, WebPage page) {
        connect(
            addEntry(name, caption), &QAction::triggered, this, [this, page] { emit pageRequested(page); },
            Qt::QueuedConnection);
    };
    addPage("mnuOnline", "&Online Help", WebPage::onlineHelp);
    addPage("mnuVisit", "&Visit Us Online", WebPage::home);
    addPage("mnuUpdate", "Check for Software &Update", WebPage::download);
    connect(addEntry("mnuAbout", "&About Software"), &QAction::triggered, this, &HelpMenu::aboutRequested,
            Qt::QueuedConnection);
}

QAction* HelpMenu::addEntry(const char* name, const char* caption) {
    QAction* action = addAction(QString::fromLatin1(caption));
    action->setObjectName(QString::fromLatin1(name));
    return action;
}
