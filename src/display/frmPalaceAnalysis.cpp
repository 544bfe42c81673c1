#include "display/frmPalaceAnalysis.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextCursor>
#include <QTextEdit>
#include <QWheelEvent>
#include <algorithm>
#include <array>

#include "display/analysis_printer.h"
#include "display/styled_text.h"
#include "help/help_menu.h"
#include "style/controls.h"
#include "style/look.h"

namespace {

constexpr int comfortableLine = 84;  // characters

// In per cent of the runs' font sizes.
constexpr std::array<int, 10> textSizes{80, 90, 100, 110, 125, 150, 175, 200, 250, 300};

constexpr int wheelStep = QWheelEvent::DefaultDeltasPerStep;

}  // namespace

frmPalaceAnalysis::frmPalaceAnalysis(AnalysisKind kind, const std::vector<TextRun>& runs,
                                     const AnalysisView& view, QWidget* parent)
    : QDialog(parent), kind_(kind), runs_(runs), view_(view) {
    named(this, "frmPalaceAnalysis");
    setWindowTitle(QStringLiteral("Palace Lantern Analysis"));
    createText();
    auto* rows = new QVBoxLayout{this};
    rows->setSpacing(10);
    rows->addWidget(RTB);
    createButtons(rows);
    createMenus();
    createKeys();
    fitToScreen();
}

void frmPalaceAnalysis::createText() {
    RTB = named(new QTextEdit, "RTB");
    RTB->setAccessibleName(QStringLiteral("Analysis"));
    RTB->setReadOnly(true);
    RTB->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    RTB->setTabChangesFocus(true);
    // The runs have dark colours, so the background stays light on a dark desktop.
    QPalette papers = RTB->palette();
    papers.setColor(QPalette::Base, look::paper);
    papers.setColor(QPalette::Text, look::ink);
    papers.setColor(QPalette::Highlight, look::blue);
    papers.setColor(QPalette::HighlightedText, Qt::white);
    RTB->setPalette(papers);
    RTB->document()->setDocumentMargin(14);
    RTB->document()->setUndoRedoEnabled(false);
    RTB->viewport()->installEventFilter(this);
    fillWithRuns(*RTB->document(), runs_, view_.textSize);
    RTB->moveCursor(QTextCursor::Start);
}

void frmPalaceAnalysis::createButtons(QVBoxLayout* rows) {
    auto* cmdSave = newButton("cmdSave", "&Save", this, &frmPalaceAnalysis::saveRequested);
    auto* cmdPrint = newButton("cmdPrint", "&Print", this, &frmPalaceAnalysis::cmdPrint_Click);
    auto* cmdOk = newButton("cmdOk", "&OK", this, &QDialog::accept);
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* button : {cmdSave, cmdPrint, cmdOk}) row->addWidget(button);
    rows->addLayout(row);
    cmdSave->setHidden(kind_ == AnalysisKind::onePalace);
    cmdPrint->setHidden(kind_ == AnalysisKind::onePalace);
    cmdOk->setDefault(true);  // needs its dialog, which the layout has set as its parent
}

void frmPalaceAnalysis::createMenus() {
    QMenuBar* menus = newMenuBar(this);
    auto* mnuFile = named(menus->addMenu(QStringLiteral("&File")), "mnuFile");
    addEntry(mnuFile, "mnuOk", "&Ok", this, &QDialog::accept);
    menus->addMenu(newHelpMenu(this));
    layout()->setMenuBar(menus);
}

void frmPalaceAnalysis::createKeys() {
    const auto addKey = [this](const QKeySequence& key, auto handler) {
        connectControl(new QShortcut{key, this}, &QShortcut::activated, this, handler);
    };
    const auto larger = [](frmPalaceAnalysis* form) { form->stepTextSize(true); };
    addKey(Qt::CTRL | Qt::Key_Plus, larger);
    addKey(Qt::CTRL | Qt::Key_Equal, larger);  // Plus without Shift on many keyboards
    addKey(Qt::CTRL | Qt::Key_Minus, [](frmPalaceAnalysis* form) { form->stepTextSize(false); });
    addKey(Qt::CTRL | Qt::Key_0, [](frmPalaceAnalysis* form) { form->setTextSize(100); });
    if (kind_ == AnalysisKind::onePalace) return;
    addKey(QKeySequence::Save, &frmPalaceAnalysis::saveRequested);
    addKey(QKeySequence::Print, &frmPalaceAnalysis::cmdPrint_Click);
}

void frmPalaceAnalysis::fitToScreen() {
    QFont body = look::textFont(QFont{});
    body.setPointSize(8);
    body.setBold(true);
    const int width = static_cast<int>(QFontMetricsF{body}.averageCharWidth() * comfortableLine) + 80;
    const QSize room = parentWidget()->screen()->availableSize() - QSize{24, 80};
    const QSize wanted = view_.size.isValid() ? view_.size : QSize{width, width * 9 / 10};
    firstSize_ = wanted.boundedTo(room);
    resize(firstSize_);
}

// A size that was only bounded by the screen does not replace the one that a person chose.
AnalysisView frmPalaceAnalysis::view() const {
    const QSize now = normalGeometry().size();
    return {view_.textSize, now == firstSize_ ? view_.size : now};
}

void frmPalaceAnalysis::cmdPrint_Click() {
    const QTextCursor cursor = RTB->textCursor();
    printAnalysis(runs_, cursor.selectionStart(), cursor.selectionEnd(), this);
}

// The line at the top of the view and the selection stay the same.
void frmPalaceAnalysis::setTextSize(int percent) {
    if (percent == view_.textSize) return;
    view_.textSize = percent;
    QTextCursor cursor = RTB->textCursor();
    const int anchor = cursor.anchor(), position = cursor.position();
    const QTextCursor top = RTB->cursorForPosition({0, 2});
    const int topLetter = top.position(), topBefore = RTB->cursorRect(top).top();
    fillWithRuns(*RTB->document(), runs_, percent);
    cursor.setPosition(topLetter);
    QScrollBar* bar = RTB->verticalScrollBar();
    const int scrolled = bar->value() + RTB->cursorRect(cursor).top() - topBefore;
    cursor.setPosition(anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    RTB->setTextCursor(cursor);
    bar->setValue(scrolled);
}

void frmPalaceAnalysis::stepTextSize(bool larger) {
    const auto here = std::ranges::find(textSizes, view_.textSize);
    if (larger && here + 1 != textSizes.end()) setTextSize(*(here + 1));
    if (!larger && here != textSizes.begin()) setTextSize(*(here - 1));
}

// A touchpad sends angles of less than a step.
bool frmPalaceAnalysis::eventFilter(QObject* watched, QEvent* event) {
    auto* wheel = event->type() == QEvent::Wheel ? static_cast<QWheelEvent*>(event) : nullptr;
    if (wheel == nullptr || !(wheel->modifiers() & Qt::ControlModifier))
        return QDialog::eventFilter(watched, event);
    turnedAngle_ += wheel->angleDelta().y();
    for (; turnedAngle_ >= wheelStep; turnedAngle_ -= wheelStep) stepTextSize(true);
    for (; turnedAngle_ <= -wheelStep; turnedAngle_ += wheelStep) stepTextSize(false);
    return true;
}
