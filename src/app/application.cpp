#include "app/application.h"

#include <QApplication>

#include "app/frmMdi.h"
#include "app/start_rules.h"
#include "chart/generate.h"
#include "display/frmDisplay.h"
#include "display/frmPalaceAnalysis.h"
#include "files/chart_file.h"
#include "files/file_dialogs.h"
#include "files/picture_export.h"
#include "files/saved_files.h"
#include "input/frmMain.h"
#include "interpret/composer.h"

Application::Application() : input_(std::make_unique<frmMain>()) {
    connect(input_.get(), &frmMain::entered, this, &Application::castChart);
    connect(input_.get(), &frmMain::closed, this, &Application::unloadAll);
}

Application::~Application() = default;

void Application::start(const QString& chartFile) {
    const bool opensFile = !chartFile.isEmpty();
    if (opensFile) input_->askForTime();
    input_->show();
    if (opensFile && !input_->fillFrom(chartFile)) input_->clearEntry();
}

void Application::castChart(const BirthEntry& entry) {
    const auto date = generateChart(entry, chart_);
    if (!date) return input_->refuseDate();
    input_->showDate(*date);
    showChart({entry.name, *date, entry.hourPosition, entry.minutePosition});
}

void Application::showChart(const BirthEntry& entry) {
    auto* display = new frmDisplay{chart_, entry};
    frame_ = std::make_unique<frmMdi>(display, [display](QSize room) { return display->fitInto(room); });
    connectChart(display);
    frame_->showInPlaceOf(*input_);
    input_->hide();
}

void Application::connectChart(frmDisplay* display) {
    frmMdi* frame = frame_.get();
    const auto savePicture = [display, frame] {
        exportPicture(display->clientPicture(), converterPath(), frame);
    };
    connect(display, &frmDisplay::palaceClicked, this, &Application::openPalace);
    connect(display, &frmDisplay::showAllRequested, this, &Application::openAllPalaces);
    connect(display, &frmDisplay::savePictureRequested, frame, savePicture);
    connect(display, &frmDisplay::backRequested, this, &Application::cmdBack_Click);
    connect(display, &frmDisplay::exitRequested, frame, &frmMdi::cmdMdiExit_Click);
    connect(display, &frmDisplay::tabbedOut, frame, &frmMdi::focusStrip);
    connect(frame, &frmMdi::showAllRequested, this, &Application::openAllPalaces);
    connect(frame, &frmMdi::savePictureRequested, frame, savePicture);
    connect(frame, &frmMdi::backRequested, this, &Application::cmdBack_Click);
    connect(frame, &frmMdi::menuKeyPressed, display, &frmDisplay::openMenu);
    connect(frame, &frmMdi::closed, this, &Application::unloadAll);
}

void Application::openPalace(int cell) {
    openAnalysis(AnalysisKind::onePalace, composePalaceAnalysis(chart_, cell));
}

void Application::openAllPalaces() { openAnalysis(AnalysisKind::allPalaces, composeAllPalaces(chart_)); }

// Made anew for each opening, and gone when it is closed.
void Application::openAnalysis(AnalysisKind kind, const std::vector<TextRun>& palaceRuns) {
    std::vector<TextRun> runs{introRun()};
    runs.insert(runs.end(), palaceRuns.begin(), palaceRuns.end());
    frmPalaceAnalysis analysis{kind, runs, textSize_, frame_.get()};
    connect(&analysis, &frmPalaceAnalysis::saveRequested, this, [this, &analysis] { saveChart(&analysis); });
    connect(&analysis, &frmPalaceAnalysis::textSizeChosen, this,
            [this](int percent) { textSize_ = percent; });
    analysis.exec();
}

void Application::saveChart(QWidget* parent) {
    const QString path = askWhereToSaveChart(parent);
    if (!path.isEmpty()) writeFile(path, chartFileBytes(chart_.input));
}

// The frame goes later, since it is one of its own buttons or menus that asks for it.
void Application::cmdBack_Click() {
    input_->clearEntry();
    frame_->hide();
    frame_.release()->deleteLater();
    chart_.loadCells();
    input_->show();
}

void Application::unloadAll() {
    const QWidgetList forms = QApplication::topLevelWidgets();
    for (QWidget* form : forms) form->hide();
    QCoreApplication::quit();
}
