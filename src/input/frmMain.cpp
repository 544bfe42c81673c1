#include "input/frmMain.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>

#include "files/chart_file.h"
#include "help/banner_link.h"
#include "help/help_menu.h"
#include "input/birth_lists.h"
#include "input/drop_down_list.h"
#include "input/input_check.h"
#include "input/name_box.h"
#include "style/controls.h"
#include "style/look.h"
#include "style/mark.h"
#include "style/message.h"

namespace {

void fill(QComboBox* list, const std::vector<std::string>& entries) {
    QStringList texts;
    for (const std::string& entry : entries) texts += latin(entry);
    list->addItems(texts);
}

// A text that is no entry leaves the list as it was.
void selectText(QComboBox* list, const std::string& entry) {
    const int index = list->findText(latin(entry), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0) list->setCurrentIndex(index);
}

// A caption; a screen reader takes it for that of the control beside or below it.
QLabel* caption(const char* words, QWidget* control = nullptr) {
    auto* label = new QLabel{latin(words)};
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(control);
    return label;
}

// The one chart file among what is dragged, or an empty path.
QString chartFileIn(const QMimeData& dragged) {
    const QList<QUrl> urls = dragged.urls();
    const QString path = urls.size() == 1 ? urls.constFirst().toLocalFile() : QString{};
    return hasChartFileEnding(path.toStdString()) ? path : QString{};
}

}  // namespace

frmMain::frmMain() {
    named(this, "frmMain");
    setWindowFlags(Qt::Window);
    setWindowTitle(look::productName());
    setAcceptDrops(true);
    createControls();
    Form_Load();
    txtName->setFocus();
}

void frmMain::Form_Load() {
    fill(cmbDate, dateEntries());
    fill(cmbMonth, monthEntries());
    fill(cmbYear, yearEntries());
    fill(cmbHour, hourEntries());
    fill(cmbMinute, minuteEntries());
    for (QComboBox* list : {cmbHour, cmbMinute, cmbDate, cmbMonth, cmbYear}) list->setCurrentIndex(0);
}

void frmMain::createControls() {
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout{content};
    rows->setContentsMargins(18, 12, 18, 18);
    rows->setSpacing(14);
    rows->addWidget(createBanner());
    rows->addWidget(createDetails());
    rows->addWidget(createButtons());
    rows->addStretch();
    followFont();

    // On a screen that is too small for the form, the form scrolls; in a window that is too wide, as on a
    // tiling desktop, its content stays in the middle.
    scroll_ = new QScrollArea;
    scroll_->setWidget(content);
    scroll_->setWidgetResizable(true);
    scroll_->setAlignment(Qt::AlignHCenter);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setFocusPolicy(Qt::NoFocus);
    auto* whole = new QVBoxLayout{this};
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll_);
    createMenus();
    // Only now: a button takes note of its dialog when it is made the default, and must be in it by then.
    cmdGenerateChart->setDefault(true);
}

QWidget* frmMain::createBanner() {
    auto* banner = new QWidget;
    auto* row = new QHBoxLayout{banner};
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new Mark{48});
    row->addWidget(lblBanner = new BannerLink{look::titleFont(), this, banner});
    row->addStretch();
    return banner;
}

QWidget* frmMain::createDetails() {
    txtName = named(new NameBox, "txtName");
    // Queued: a modal message in the midst of the box's own work would disturb it.
    connectControl(txtName, &NameBox::rejected, this, &frmMain::txtName_KeyPress, Qt::QueuedConnection);
    cmbDate = named(new DropDownList, "cmbDate");
    cmbMonth = named(new DropDownList, "cmbMonth");
    cmbYear = named(new DropDownList, "cmbYear");
    cmbHour = named(new DropDownList, "cmbHour");
    cmbMinute = named(new DropDownList, "cmbMinute");

    auto* details = new QGroupBox{QStringLiteral("Enter your Details")};
    details->installEventFilter(this);
    auto* grid = new QGridLayout{details};
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(2, 1);
    grid->addWidget(caption("Name", txtName), 0, 0);
    grid->addWidget(txtName, 0, 1, 1, 3);
    grid->setRowMinimumHeight(1, 6);
    addList(grid, 2, 1, "Date", cmbDate);
    addList(grid, 2, 2, "Month", cmbMonth);
    addList(grid, 2, 3, "Year", cmbYear);
    grid->addWidget(caption(" Date Of Birth"), 3, 0);
    grid->setRowMinimumHeight(4, 6);
    addList(grid, 5, 1, "Hour", cmbHour);
    addList(grid, 5, 2, "Minutes", cmbMinute);
    grid->addWidget(caption("Time Of Birth"), 6, 0);
    return details;
}

void frmMain::addList(QGridLayout* grid, int row, int column, const char* heading, QComboBox* list) {
    grid->addWidget(caption(heading, list), row, column);
    grid->addWidget(list, row + 1, column);
}

QWidget* frmMain::createButtons() {
    cmdGenerateChart = newButton("cmdGenerateChart", "Get My &Palace Lantern Interpretation", this,
                                 &frmMain::cmdGenerateChart_Click);
    cmdOpen = newButton("cmdOpen", "Click Here To Open Previously Saved Palace Lantern Interpretation", this,
                        &frmMain::cmdOpen_Click);
    cmExit = newButton("cmExit", "&Exit", this, &frmMain::cmExit_Click);

    auto* buttons = new QWidget;
    auto* rows = new QVBoxLayout{buttons};
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(cmdGenerateChart);
    rows->addWidget(cmdOpen);
    rows->addWidget(cmExit, 0, Qt::AlignRight);
    return buttons;
}

void frmMain::createMenus() {
    QMenuBar* menus = newMenuBar(this);
    auto* mnuFile = addMenu(menus, "mnuFile", "&File");
    addEntry(mnuFile, "mnuGenerateChart", "Get My &Palace Lantern Chart", this,
             &frmMain::cmdGenerateChart_Click);
    // The name's spelling is the system's own.
    addEntry(mnuFile, "mnuOpenPrevioyslySavedChart", "Open Previously Saved Palace Lantern Interpretation",
             this, &frmMain::cmdOpen_Click, QKeySequence::Open);
    mnuFile->addSeparator();
    addEntry(mnuFile, "mnuExit", "E&xit", this, &frmMain::cmExit_Click);
    menus->addMenu(new HelpMenu{this});
    layout()->setMenuBar(menus);
}

void frmMain::cmdGenerateChart_Click() {
    const BirthEntry birth = entry();
    if (passesCheck(birth)) emit entered(birth);
}

void frmMain::cmdOpen_Click() { emit openRequested(); }

void frmMain::cmExit_Click() { close(); }

void frmMain::txtName_KeyPress() {
    showMessage(this, QMessageBox::Information, QStringLiteral("Please Enter Only Letters"));
}

void frmMain::showInPlaceOf(const QWidget& frame) {
    setScreen(frame.screen());
    show();
}

void frmMain::fillIn(const ChartFileValues& values) {
    txtName->setName(latin(values.name));
    selectText(cmbDate, values.day);
    selectText(cmbMonth, values.month);
    selectText(cmbYear, values.year);
}

void frmMain::askForTime() {
    if (passesCheck(entry())) cmbHour->setFocus();
}

bool frmMain::passesCheck(const BirthEntry& birth) {
    const auto failure = checkBirthEntry(birth);
    if (!failure) return true;
    showMessage(this, QMessageBox::Information, latin(failure->message));
    (failure->field == InputField::txtName ? static_cast<QWidget*>(txtName) : cmbDate)->setFocus();
    return false;
}

BirthEntry frmMain::entry() const {
    return {txtName->text().toStdU16String(),
            {cmbDate->currentIndex(), cmbMonth->currentIndex(), cmbYear->currentIndex()},
            cmbHour->currentIndex(),
            cmbMinute->currentIndex()};
}

void frmMain::showDate(const PickedDate& date) {
    cmbDate->setCurrentIndex(date.dayPosition);
    cmbMonth->setCurrentIndex(date.monthPosition);
    cmbYear->setCurrentIndex(date.yearPosition);
}

void frmMain::refuseDate() {
    showMessage(this, QMessageBox::Information, QStringLiteral("Please Enter Correct Date"));
}

void frmMain::clearEntry() {
    txtName->setName({});
    for (QComboBox* list : {cmbDate, cmbMonth, cmbYear, cmbHour, cmbMinute}) list->setCurrentIndex(0);
    txtName->setFocus();
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->accept();
    emit closed();
}

// One chart file, while no dialog is open. It is copied, whatever is proposed: the sender deletes what is
// moved.
void frmMain::considerDrop(QDropEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(mayAct(*this) && !chartFileIn(*event->mimeData()).isEmpty());
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) { considerDrop(event); }
void frmMain::dragMoveEvent(QDragMoveEvent* event) { considerDrop(event); }

void frmMain::dropEvent(QDropEvent* event) {
    considerDrop(event);
    if (!event->isAccepted()) return;
    // Queued, so that the sender need not wait for the chart.
    const auto open = [this, path = chartFileIn(*event->mimeData())] {
        if (mayAct(*this)) emit fileDropped(path);
    };
    QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

// Qt 6.8 still: QGroupBox swallows Enter where the desktop lets Enter press buttons, and the name box would
// not cast.
bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return QDialog::eventFilter(watched, event);
    event->ignore();
    return true;
}

// Escape in the first window of the program would lose what was entered: it does nothing.
void frmMain::reject() {}

void frmMain::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange) followFont();
}

// What is measured by the desktop's font, which may change.
void frmMain::followFont() {
    lblBanner->setFont(look::titleFont());
    for (QPushButton* button : {cmdGenerateChart, cmdOpen, cmExit})
        button->setMinimumHeight(fontMetrics().height() + 14);
    // Queued, because the layouts take the new sizes later.
    if (isVisible()) QMetaObject::invokeMethod(this, &frmMain::fitToScreen, Qt::QueuedConnection);
}

// Fitted anew each time: the screen may have changed while the form was hidden, or may change later.
void frmMain::setVisible(bool visible) {
    if (visible) {
        fitToScreen();
        const QRect room = screen()->availableGeometry();
        const QSize rest = (room.size() - size()) / 2;
        move(room.topLeft() + QPoint{rest.width(), rest.height() / 2});
    }
    QDialog::setVisible(visible);
    if (visible)
        connect(windowHandle(), &QWindow::screenChanged, this, &frmMain::fitToScreen, Qt::UniqueConnection);
    setAttribute(Qt::WA_KeyboardFocusChange);  // else some styles show the focus only after a key
}

// As large as its content, as far as the screen allows.
void frmMain::fitToScreen() {
    const QSize room = screen()->availableSize() - QSize{16, 40};
    // A little more than needed: the longest button gets room round its words, and at fractional scales,
    // windows are rounded to whole device pixels.
    constexpr QSize spare{24, 2};
    const QSize content = scroll_->widget()->sizeHint();
    scroll_->widget()->setMaximumWidth(content.width() * 5 / 4);
    QSize size = content + QSize{0, layout()->menuBar()->sizeHint().height()} + spare;
    if (size.height() > room.height()) size.rwidth() += scroll_->verticalScrollBar()->sizeHint().width();
    size = size.boundedTo(room);
    setMinimumSize(size);
    resize(size);
}
