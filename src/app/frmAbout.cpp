#include "app/frmAbout.h"

#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

#include "style/look.h"

namespace {

QLabel* plainLabel(const QString& text, const char* name) {
    auto* label = new QLabel{text};
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

}  // namespace

frmAbout::frmAbout(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(tr("About Palace Lantern"));
    auto* mark = new QLabel;
    mark->setAccessibleName(tr("Lantern"));
    mark->setPixmap(
        QIcon{QStringLiteral(":/icons/palace-lantern-128.png")}.pixmap(QSize{64, 64}, devicePixelRatioF()));
    QLabel* name = plainLabel(look::productName(), "lblProduct");
    QFont title = name->font();
    title.setPointSizeF(title.pointSizeF() * 1.7);
    title.setBold(true);
    name->setFont(title);
    QLabel* purpose =
        plainLabel(tr("Casts a Zi Wei Dou Shu birth chart and explains it in plain English."), "lblPurpose");
    purpose->setWordWrap(true);
    purpose->setMinimumWidth(260);
    auto* cmdOk = new QPushButton{tr("&OK")};
    cmdOk->setObjectName(QStringLiteral("cmdOk"));
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);

    auto* grid = new QGridLayout{this};
    // As large as its words, also where that is more of the screen than the toolkit would give to a dialog.
    grid->setSizeConstraint(QLayout::SetFixedSize);
    grid->setContentsMargins(18, 18, 18, 14);
    grid->setHorizontalSpacing(16);
    grid->addWidget(mark, 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(name, 0, 1);
    grid->addWidget(plainLabel(tr("Version %1").arg(QStringLiteral(PALACE_LANTERN_VERSION)), "lblVersion"), 1,
                    1);
    grid->addWidget(purpose, 2, 1);
    grid->addWidget(cmdOk, 3, 1, Qt::AlignRight);
    cmdOk->setDefault(true);
}
