#include "help/help_menu.h"

#include "help/frmAbout.h"
#include "help/pages.h"
#include "style/controls.h"

HelpMenu::HelpMenu(QWidget* form) : QMenu(QStringLiteral("&Help"), form) {
    named(this, "mnuHelp");
    const auto addPage = [this, form](const char* name, const char* caption, WebPage page,
                                      const QKeySequence& shortcut = {}) {
        addEntry(
            this, name, caption, form, [page](QWidget* asker) { openPage(page, asker); }, shortcut);
    };
    addPage("mnuOnline", "&Online Help", WebPage::onlineHelp, QKeySequence::HelpContents);
    addPage("mnuVisit", "&Visit Us Online", WebPage::home);
    addPage("mnuUpdate", "Check for Software &Update", WebPage::download);
    addEntry(this, "mnuAbout", "&About Software", form, [](QWidget* asker) { frmAbout{asker}.exec(); });
}
