#include "input/frmMain.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QUrl>
#include <QWindow>

#include "files/chart_file.h"
#include "help/banner_link.h"
#include "help/help_menu.h"
#include "input/input_check.h"
#include "input/name_box.h"
#include "style/controls.h"
#include "style/look.h"
#include "style/message.h"

namespace {

// Until Qt 6.8: a hidden QListView sends an accessibility focus event when a key changes the list's entry.
class EntryView : public QListView {
  protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override {
        if (isVisible()) return QListView::currentChanged(current, previous);
        QAbstractItemView::currentChanged(current, previous);
    }
};

// Called only when a key is pressed, because five more views would slow the start down.
void useEntryView(QComboBox* list) {
    if (dynamic_cast<EntryView*>(list->view()) == nullptr) list->setView(new EntryView);
}

void fillNumbers(QComboBox* list, int first, int count) {
    QStringList numbers;
    for (int number = first; number < first + count; ++number) numbers += QString::number(number);
    list->addItems(numbers);
}

bool isEnterPress(const QEvent& event) {
    return event.type() == QEvent::KeyPress && isEnter(static_cast<const QKeyEvent&>(event).key());
}

// A label that is also the accessible name of its control.
QLabel* caption(const char* words, QWidget* control = nullptr) {
    auto* label = new QLabel{latin(words)};
    label->setBuddy(control);
    return label;
}

void addList(QGridLayout* grid, int row, int column, const char* heading, QComboBox* list) {
    grid->addWidget(caption(heading, list), row, column);
    grid->addWidget(list, row + 1, column);
}

// The path of the dragged file, or an empty one unless exactly one chart file is dragged.
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
    fillNumbers(cmbDate, 1, dayCount);
    for (const std::string_view month : monthNames) cmbMonth->addItem(latin(month));
    fillNumbers(cmbYear, firstYear, yearCount);
    fillNumbers(cmbHour, 0, hourCount);
    fillNumbers(cmbMinute, 0, minuteCount);
}

void frmMain::createControls() {
    auto* content = new QWidget{this};
    auto* rows = new QVBoxLayout{content};
    rows->setContentsMargins(18, 12, 18, 18);
    rows->setSpacing(14);
    rows->addWidget(createBanner());
    rows->addWidget(createDetails());
    rows->addWidget(createButtons());
    rows->addStretch();
    followFont();

    // The form scrolls on a screen that is too small, and is centred in a window that is tiled and too wide.
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
    // Only now, because setDefault() needs the button's dialog.
    cmdGenerateChart->setDefault(true);
}

QWidget* frmMain::createBanner() {
    auto* banner = new QWidget;
    auto* row = new QHBoxLayout{banner};
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(look::newMark(48));
    row->addWidget(lblBanner = new BannerLink{look::titleFont(), this, banner});
    row->addStretch();
    return banner;
}

QComboBox* frmMain::createList(const char* name) {
    auto* list = named(new QComboBox, name);
    list->setFocusPolicy(Qt::StrongFocus);
    list->setMaxVisibleItems(16);
    list->installEventFilter(this);
    return list;
}

QWidget* frmMain::createDetails() {
    txtName = named(new NameBox, "txtName");
    // Queued, so that no modal message opens while the box handles an event.
    connectControl(txtName, &NameBox::rejected, this, &frmMain::txtName_KeyPress, Qt::QueuedConnection);
    cmbDate = createList("cmbDate");
    cmbMonth = createList("cmbMonth");
    cmbYear = createList("cmbYear");
    cmbHour = createList("cmbHour");
    cmbMinute = createList("cmbMinute");

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

QWidget* frmMain::createButtons() {
    cmdGenerateChart = newButton("cmdGenerateChart", "Get My &Palace Lantern Interpretation", this,
                                 &frmMain::cmdGenerateChart_Click);
    auto* cmdOpen = newButton("cmdOpen", "Click Here To Open Previously Saved Palace Lantern Interpretation",
                              this, &frmMain::cmdOpen_Click);
    auto* cmExit = newButton("cmExit", "&Exit", this, &frmMain::cmExit_Click);

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
    auto* mnuFile = named(menus->addMenu(QStringLiteral("&File")), "mnuFile");
    addEntry(mnuFile, "mnuGenerateChart", "Get My &Palace Lantern Chart", this,
             &frmMain::cmdGenerateChart_Click);
    // Intentional: "Previoysly".
    addEntry(mnuFile, "mnuOpenPrevioyslySavedChart", "Open Previously Saved Palace Lantern Interpretation",
             this, &frmMain::cmdOpen_Click, QKeySequence::Open);
    mnuFile->addSeparator();
    addEntry(mnuFile, "mnuExit", "E&xit", this, &frmMain::cmExit_Click);
    menus->addMenu(newHelpMenu(this));
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

void frmMain::fillIn(const ChartFileValues& values) {
    txtName->setName(latin(values.name));
    cmbDate->setCurrentText(latin(values.day));
    cmbMonth->setCurrentText(latin(values.month));
    cmbYear->setCurrentText(latin(values.year));
}

void frmMain::askForTime() {
    if (passesCheck(entry())) cmbHour->setFocus();
}

bool frmMain::passesCheck(const BirthEntry& birth) {
    const auto message = checkBirthEntry(birth);
    if (!message) return true;
    showMessage(this, QMessageBox::Information, latin(*message));
    birth.name.empty() ? txtName->setFocus() : cmbDate->setFocus();
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

void frmMain::clearEntry() {
    txtName->setName({});
    for (QComboBox* list : {cmbDate, cmbMonth, cmbYear, cmbHour, cmbMinute}) list->setCurrentIndex(0);
    txtName->setFocus();
}

// QDialog::closeEvent() would call reject(), which does nothing here.
void frmMain::closeEvent(QCloseEvent*) { emit closed(); }

// Accepts one chart file while no dialog is open. Always as a copy: after a move, the sender deletes it.
void frmMain::considerDrop(QDropEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(mayAct(*this) && !chartFileIn(*event->mimeData()).isEmpty());
}

void frmMain::dragEnterEvent(QDragEnterEvent* event) { considerDrop(event); }
void frmMain::dragMoveEvent(QDragMoveEvent* event) { considerDrop(event); }

void frmMain::dropEvent(QDropEvent* event) {
    considerDrop(event);
    if (!event->isAccepted()) return;
    // Queued, so that the sender does not wait for the chart.
    const auto open = [this, path = chartFileIn(*event->mimeData())] {
        if (mayAct(*this)) emit fileDropped(path);
    };
    QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

// A list handles the wheel only while it has the focus. Qt 6.8 still: where the desktop lets Enter press
// buttons, QComboBox and QGroupBox handle it, so that it would not reach the default button.
bool frmMain::eventFilter(QObject* watched, QEvent* event) {
    auto* list = qobject_cast<QComboBox*>(watched);
    const QEvent::Type type = event->type();
    const bool ignored = list == nullptr
                             ? type == QEvent::KeyPress || type == QEvent::KeyRelease
                             : isEnterPress(*event) || (type == QEvent::Wheel && !list->hasFocus());
    if (ignored) event->ignore();
    if (!ignored && list != nullptr && type == QEvent::KeyPress) useEntryView(list);
    return ignored || QDialog::eventFilter(watched, event);
}

// Escape does nothing: it would close the main window of the program and lose what was entered.
void frmMain::reject() {}

void frmMain::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange) followFont();
}

// Sets what depends on the size of the desktop's font, which may change.
void frmMain::followFont() {
    lblBanner->setFont(look::titleFont());
    for (QPushButton* button : findChildren<QPushButton*>())
        button->setMinimumHeight(fontMetrics().height() + 14);
    // Queued, because the layouts take the new sizes later.
    if (isVisible()) QMetaObject::invokeMethod(this, &frmMain::fitToScreen, Qt::QueuedConnection);
}

// Fits the form each time, because the screen may have changed while it was hidden.
void frmMain::setVisible(bool visible) {
    if (visible) {
        fitToScreen();
        const QRect room = screen()->availableGeometry();
        const QSize rest = (room.size() - size()) / 2;
        move(room.topLeft() + QPoint{rest.width(), rest.height() / 2});  // above the middle
    }
    QDialog::setVisible(visible);
    if (visible)
        connect(windowHandle(), &QWindow::screenChanged, this, &frmMain::fitToScreen, Qt::UniqueConnection);
    setAttribute(Qt::WA_KeyboardFocusChange);  // else some styles show the focus only after a key press
}

void frmMain::fitToScreen() {
    const QSize room = screen()->availableSize() - QSize{16, 40};
    // Width for the longest button's text, and height for sizes that are rounded to device pixels.
    constexpr QSize spare{24, 2};
    const QSize content = scroll_->widget()->sizeHint();
    scroll_->widget()->setMaximumWidth(content.width() * 5 / 4);
    QSize size = content + QSize{0, layout()->menuBar()->sizeHint().height()} + spare;
    if (size.height() > room.height()) size.rwidth() += scroll_->verticalScrollBar()->sizeHint().width();
    size = size.boundedTo(room);
    setMinimumSize(size);
    resize(size);
}
