#include "input/frmMain.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "files/chart_file.h"
#include "files/file_dialogs.h"
#include "input/birth_lists.h"
#include "input/details_frame.h"
#include "input/drop_down_list.h"
#include "input/name_box.h"
#include "style/link_label.h"
#include "style/look.h"
#include "style/message.h"

namespace {

QString text(std::string_view latin1) {
    return QString::fromLatin1(latin1.data(), static_cast<qsizetype>(latin1.size()));
}

template <class Control>
Control* named(Control* control, const char* name) {
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

// Screen readers call the list by the plain word that stands over it.
QComboBox* listNamed(const char* name, const char* spokenName, const char* widestEntry) {
    auto* list = named(new DropDownList{QString::fromLatin1(widestEntry)}, name);
    list->setAccessibleName(QString::fromLatin1(spokenName));
    return list;
}

void fill(QComboBox* list, const std::vector<std::string>& entries) {
    QStringList texts;
    for (const std::string& entry : entries) texts += text(entry);
    list->addItems(texts);
}

QLabel* caption(const char* words) {
    auto* label = new QLabel{QString::fromLatin1(words)};
    label->setTextFormat(Qt::PlainText);
    return label;
}

}  // namespace

frmMain::frmMain(ChartModel& chart) : chart_(chart) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowFlags(Qt::Window);
    setWindowTitle(look::productName());
    createControls();
    Form_Load();
    fitToScreen();
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

    // On a screen that is too small for the form, the form scrolls.
    scroll_ = new QScrollArea;
    scroll_->setWidget(content);
    scroll_->setWidgetResizable(true);
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
    auto* mark = new QLabel;
    mark->setAccessibleName(tr("Lantern"));
    mark->setPixmap(windowIcon().pixmap(QSize{48, 48}, devicePixelRatioF()));
    row->addWidget(mark);
    lblBanner = named(new LinkLabel{look::productName(), banner}, "lblBanner");
    QFont title = lblBanner->font();
    title.setPointSizeF(title.pointSizeF() * 1.7);
    title.setBold(true);
    lblBanner->setFont(title);
    lblBanner->setAccessibleDescription(tr("Opens the home page"));
    connect(lblBanner, &LinkLabel::clicked, this, [this] { emit pageRequested(WebPage::home); });
    row->addWidget(lblBanner);
    row->addStretch();
    return banner;
}

QWidget* frmMain::createDetails() {
    txtName = named(new NameBox, "txtName");
    txtName->setAccessibleName(tr("Name"));
    cmbDate = listNamed("cmbDate", "Date", "30");
    cmbMonth = listNamed("cmbMonth", "Month", "September");
    cmbYear = listNamed("cmbYear", "Year", "2000");
    cmbHour = listNamed("cmbHour", "Hour", "20");
    cmbMinute = listNamed("cmbMinute", "Minutes", "50");
    connect(txtName, &NameBox::rejected, this, &frmMain::txtName_KeyRejected);

    auto* details = new DetailsFrame{tr("Enter your Details")};
    auto* grid = new QGridLayout{details};
    grid->setHorizontalSpacing(12);
    grid->setColumnStretch(2, 1);
    grid->addWidget(caption("Name"), 0, 0);
    grid->addWidget(txtName, 0, 1, 1, 3);
    grid->setRowMinimumHeight(1, 6);
    const auto addList = [grid](int row, int column, const char* heading, QComboBox* list) {
        grid->addWidget(caption(heading), row, column);
        grid->addWidget(list, row + 1, column);
    };
    addList(2, 1, "Date", cmbDate);
    addList(2, 2, "Month", cmbMonth);
    addList(2, 3, "Year", cmbYear);
    grid->addWidget(caption(" Date Of Birth"), 3, 0);
    grid->setRowMinimumHeight(4, 6);
    addList(5, 1, "Hour", cmbHour);
    addList(5, 2, "Minutes", cmbMinute);
    grid->addWidget(caption("Time Of Birth"), 6, 0);
    return details;
}

QWidget* frmMain::createButtons() {
    cmdGenerateChart =
        named(new QPushButton{tr("Get My &Palace Lantern Interpretation")}, "cmdGenerateChart");
    cmdOpen = named(new QPushButton{tr("Click Here To Open Previously Saved Palace Lantern Interpretation")},
                    "cmdOpen");
    cmExit = named(new QPushButton{tr("&Exit")}, "cmExit");
    connect(cmdGenerateChart, &QPushButton::clicked, this, &frmMain::cmdGenerateChart_Click);
    connect(cmdOpen, &QPushButton::clicked, this, &frmMain::cmdOpen_Click);
    connect(cmExit, &QPushButton::clicked, this, &frmMain::cmExit_Click);

    for (QPushButton* button : {cmdGenerateChart, cmdOpen, cmExit}) {
        button->setMinimumHeight(button->fontMetrics().height() + 14);
    }

    auto* buttons = new QWidget;
    auto* rows = new QVBoxLayout{buttons};
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(cmdGenerateChart);
    rows->addWidget(cmdOpen);
    rows->addWidget(cmExit, 0, Qt::AlignRight);
    return buttons;
}

void frmMain::createMenus() {
    auto* menus = new QMenuBar{this};
    auto* mnuFile = named(menus->addMenu(tr("&File")), "mnuFile");
    const auto addEntry = [this, mnuFile](const char* name, const char* words, void (frmMain::*handler)()) {
        named(mnuFile->addAction(QString::fromLatin1(words), this, handler, Qt::QueuedConnection), name);
    };
    addEntry("mnuGenerateChart", "Get My &Palace Lantern Chart", &frmMain::cmdGenerateChart_Click);
    // The name's spelling is the system's own.
    addEntry("mnuOpenPrevioyslySavedChart", "Open Previously Saved Palace Lantern Interpretation",
             &frmMain::cmdOpen_Click);
    mnuFile->addSeparator();
    addEntry("mnuExit", "E&xit", &frmMain::cmExit_Click);
    auto* mnuHelp = new HelpMenu{menus};
    menus->addMenu(mnuHelp);
    connect(mnuHelp, &HelpMenu::pageRequested, this, &frmMain::pageRequested);
    connect(mnuHelp, &HelpMenu::aboutRequested, this, &frmMain::aboutRequested);
    layout()->setMenuBar(menus);
}

void frmMain::cmdGenerateChart_Click() {
    BirthEntry birth = entry();
    if (!passesCheck(birth)) return;
    // The person sees each chart in a chart window of its own, with its cells as loaded.
    chart_.loadCells();
    if (generateChart(birth, chart_) == Generation::dateRefused) {
        showMessage(this, QMessageBox::Information, tr("Please Enter Correct Date"));
        return;
    }
    select(birth.date);
    emit chartGenerated(birth);
}

void frmMain::cmdOpen_Click() {
    const QString path = askForChartFile(this);
    if (path.isEmpty()) return;
    const std::string encoded = QFile::encodeName(path).toStdString();
    if (!hasChartFileEnding(encoded)) {
        showMessage(this, QMessageBox::Critical, tr("Please Check The File."));
        return;
    }
    const ChartFileValues values = readChartFile(encoded);
    txtName->setText(text(values.name));
    selectText(cmbDate, values.day);
    selectText(cmbMonth, values.month);
    selectText(cmbYear, values.year);
    cmdGenerateChart_Click();
}

void frmMain::cmExit_Click() { close(); }

void frmMain::txtName_KeyRejected() {
    showMessage(this, QMessageBox::Information, tr("Please Enter Only Letters"));
}

bool frmMain::passesCheck(const BirthEntry& birth) {
    const auto failure = checkBirthEntry(birth);
    if (!failure) return true;
    showMessage(this, QMessageBox::Information, text(failure->message));
    (failure->field == InputField::txtName ? static_cast<QWidget*>(txtName) : cmbDate)->setFocus();
    return false;
}

BirthEntry frmMain::entry() const {
    return {txtName->text().toStdU16String(),
            {cmbDate->currentIndex(), cmbMonth->currentIndex(), cmbYear->currentIndex()},
            cmbHour->currentIndex(),
            cmbMinute->currentIndex()};
}

void frmMain::select(const DateLists& date) {
    cmbDate->setCurrentIndex(date.dayPosition);
    cmbMonth->setCurrentIndex(date.monthPosition);
    cmbYear->setCurrentIndex(date.yearPosition);
}

// A text that is no entry leaves the list as it was.
void frmMain::selectText(QComboBox* list, const std::string& entryText) {
    const int index = list->findText(text(entryText), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0) list->setCurrentIndex(index);
}

void frmMain::clearEntry() {
    txtName->clear();
    for (QComboBox* list : {cmbDate, cmbMonth, cmbYear, cmbHour, cmbMinute}) list->setCurrentIndex(0);
    txtName->setFocus();
}

void frmMain::closeEvent(QCloseEvent* event) {
    event->accept();
    emit closed();
}

// Escape in the first window of the program would lose what was entered: it does nothing.
void frmMain::reject() {}

// As large as its content and in the middle of the screen. Where the screen is smaller, the form scrolls.
void frmMain::fitToScreen() {
    const QRect available = screen()->availableGeometry();
    const QSize room = available.size() - QSize{16, 40};
    // A little more than needed: the longest button gets room round its words, and at fractional scales,
    // windows are rounded to whole dots of the screen.
    constexpr QSize spare{24, 2};
    QSize size = scroll_->widget()->sizeHint() + QSize{0, layout()->menuBar()->sizeHint().height()} + spare;
    if (size.height() > room.height()) size.rwidth() += scroll_->verticalScrollBar()->sizeHint().width();
    size = size.boundedTo(room);
    resize(size);
    const QSize rest = (available.size() - size) / 2;
    move(available.topLeft() + QPoint{rest.width(), rest.height() / 2});
}
