#include "help/help_menu.h"

#include "help/frmAbout.h"
#include "help/pages.h"
#include "style/controls.h"

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
