#include "help/frmAbout.h"

#include <QGridLayout>
#include <QLabel>
#include <QShortcut>

#include "help/help_menu.h"
#include "style/controls.h"
#include "style/look.h"

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
    named(this, "frmAbout");
    setWindowTitle(QStringLiteral("About Palace Lantern"));
    auto* product = named(new QLabel{look::productName()}, "lblProduct");
    product->setFont(look::titleFont());
    auto* version = named(new QLabel{QStringLiteral("Version " PALACE_LANTERN_VERSION)}, "lblVersion");
    const auto words = QStringLiteral("Casts a Zi Wei Dou Shu birth chart and explains it in plain English.");
    auto* purpose = named(new QLabel{words}, "lblPurpose");
    purpose->setWordWrap(true);
    purpose->setMinimumWidth(260);
    QPushButton* cmdOk = newButton("cmdOk", "&OK", this, &QDialog::accept);
    auto* help = new QShortcut{QKeySequence::HelpContents, this};
    connectControl(help, &QShortcut::activated, this,
                   [](QWidget* asker) { openPage(WebPage::onlineHelp, asker); });

    auto* grid = new QGridLayout{this};
    // As large as its contents, which may be more than the two thirds of the screen that a layout allows.
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->setContentsMargins(18, 18, 18, 14);
    grid->setHorizontalSpacing(16);
    grid->addWidget(look::newMark(64), 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(product, 0, 1);
    grid->addWidget(version, 1, 1);
    grid->addWidget(purpose, 2, 1);
    grid->addWidget(cmdOk, 3, 1, Qt::AlignRight);
    cmdOk->setDefault(true);
}
