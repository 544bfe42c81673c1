#include "display/frmPalaceAnalysis.h"

#include <QHBoxLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

#include "display/analysis_printer.h"
#include "style/look.h"

namespace {

// A line of the text is easiest to read at about this many characters.
constexpr int comfortableLine = 84;

QTextCharFormat formatFor(const TextStyle& style) {
    QTextCharFormat format;
    format.setFontFamilies(look::textFont(QFont{}).families());
    format.setFontPointSize(style.size);
    format.setFontWeight(style.bold ? QFont::Bold : QFont::Normal);
    format.setForeground(QColor{style.colour.red, style.colour.green, style.colour.blue});
    return format;
}

QString withLineBreaks(const std::string& text) {
    return QString::fromStdString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

template <class Control>
Control* named(Control* control, const char* name) {
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

}  // namespace

frmPalaceAnalysis::frmPalaceAnalysis(AnalysisKind kind, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmPalaceAnalysis"));
    setWindowTitle(tr("Palace Lantern Analysis"));
    createText();
    auto* rows = new QVBoxLayout{this};
    rows->setSpacing(10);
    rows->addWidget(RTB);
    createButtons(kind, rows);
    cmdOk->setDefault(true);
    createMenus();
    fitToScreen();
}

void frmPalaceAnalysis::createText() {
    RTB = named(new QTextEdit, "RTB");
    RTB->setAccessibleName(tr("Analysis"));
    RTB->setReadOnly(true);
    RTB->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    RTB->setTabChangesFocus(true);
    // The runs bring dark colours of their own, so the text keeps its paper on a dark desktop.
    QPalette papers = RTB->palette();
    papers.setColor(QPalette::Base, look::paper);
    papers.setColor(QPalette::Text, look::ink);
    papers.setColor(QPalette::Highlight, look::blue);
    papers.setColor(QPalette::HighlightedText, Qt::white);
    RTB->setPalette(papers);
    RTB->document()->setDocumentMargin(14);
    RTB->document()->setUndoRedoEnabled(false);
}

void frmPalaceAnalysis::createButtons(AnalysisKind kind, QVBoxLayout* rows) {
    cmdSave = named(new QPushButton{tr("&Save")}, "cmdSave");
    cmdPrint = named(new QPushButton{tr("&Print")}, "cmdPrint");
    cmdOk = named(new QPushButton{tr("&OK")}, "cmdOk");
    connect(cmdSave, &QPushButton::clicked, this, &frmPalaceAnalysis::saveRequested);
    connect(cmdPrint, &QPushButton::clicked, this, &frmPalaceAnalysis::cmdPrint_Click);
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* button : {cmdSave, cmdPrint, cmdOk}) row->addWidget(button);
    rows->addLayout(row);
    cmdSave->setHidden(kind == AnalysisKind::onePalace);
    cmdPrint->setHidden(kind == AnalysisKind::onePalace);
}

void frmPalaceAnalysis::createMenus() {
    auto* menus = new QMenuBar{this};
    auto* mnuFile = named(menus->addMenu(tr("&File")), "mnuFile");
    named(mnuFile->addAction(tr("&Ok"), this, &QDialog::accept), "mnuOk");
    auto* mnuHelp = new HelpMenu{menus};
    menus->addMenu(mnuHelp);
    connect(mnuHelp, &HelpMenu::pageRequested, this, &frmPalaceAnalysis::pageRequested);
    connect(mnuHelp, &HelpMenu::aboutRequested, this, &frmPalaceAnalysis::aboutRequested);
    layout()->setMenuBar(menus);
}

void frmPalaceAnalysis::fitToScreen() {
    QFont body = look::textFont(QFont{});
    body.setPointSize(8);
    body.setBold(true);
    const int width = static_cast<int>(QFontMetricsF{body}.averageCharWidth() * comfortableLine) + 80;
    const QSize room = screen()->availableSize() - QSize{24, 48};
    resize(QSize{width, width * 9 / 10}.boundedTo(room));
}

void frmPalaceAnalysis::append(const std::vector<TextRun>& runs) {
    QTextCursor end{RTB->document()};
    end.movePosition(QTextCursor::End);
    end.beginEditBlock();
    for (const TextRun& run : runs) end.insertText(withLineBreaks(run.text), formatFor(run.style));
    end.endEditBlock();
    // The text is read from its top, by eye and by the keyboard's cursor.
    RTB->moveCursor(QTextCursor::Start);
}

void frmPalaceAnalysis::cmdPrint_Click() { printAnalysis(*RTB, this); }
