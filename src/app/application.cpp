#include "app/application.h"

#include <QApplication>

#include "app/frmMdi.h"
#include "app/start_rules.h"
#include "chart/generate.h"
#include "display/frmDisplay.h"
#include "files/chart_file.h"
#include "files/file_dialogs.h"
#include "files/picture_export.h"
#include "files/saved_files.h"
#include "input/frmMain.h"
#include "interpret/composer.h"
#include "style/message.h"

Application::Application() : input_(std::make_unique<frmMain>()) {
    connect(input_.get(), &frmMain::entered, this, &Application::castChart);
    connect(input_.get(), &frmMain::openRequested, this, [this] {
        const QString path = askForChartFile(input_.get());
        if (!path.isEmpty()) openAndCastChart(path);
    });
    connect(input_.get(), &frmMain::fileDropped, this, &Application::openAndCastChart);
    connect(input_.get(), &frmMain::closed, this, &Application::unloadAll);
}

Application::~Application() = default;

// Casts no chart yet: a chart file has no time of birth, and midnight would give the chart of the next day.
void Application::start(const QString& chartFile) {
    input_->show();
    if (!chartFile.isEmpty() && openChart(chartFile)) input_->askForTime();
}

void Application::openAndCastChart(const QString& path) {
    if (openChart(path)) input_->cmdGenerateChart_Click();
}

// Fills the form in from a chart file and returns whether the file could be read; if not, says so.
bool Application::openChart(const QString& path) {
    const auto bytes =
        hasChartFileEnding(path.toStdString()) ? readFile(path, longestChartFile) : std::nullopt;
    if (bytes) input_->fillIn(chartFileValues(*bytes));
    if (!bytes) showMessage(input_.get(), QMessageBox::Critical, QStringLiteral("Please Check The File."));
    return bytes.has_value();
}

void Application::castChart(const BirthEntry& entry) {
    const auto date = generateChart(entry, chart_);
    if (!date)
        return showMessage(input_.get(), QMessageBox::Information,
                           QStringLiteral("Please Enter Correct Date"));
    input_->showDate(*date);
    showChart({entry.name, *date, entry.hourPosition, entry.minutePosition});
}

void Application::showChart(const BirthEntry& entry) {
    auto* display = new frmDisplay{chart_, entry};
    frame_ = std::make_unique<frmMdi>(display, QString::fromStdU16String(chart_.input.name));
    frmMdi* frame = frame_.get();
    connect(display, &frmDisplay::palaceClicked, this,
            [this](int cell) { openAnalysis(AnalysisKind::onePalace, composePalaceAnalysis(chart_, cell)); });
    connect(frame, &frmMdi::showAllRequested, this,
            [this] { openAnalysis(AnalysisKind::allPalaces, composeAllPalaces(chart_)); });
    connect(frame, &frmMdi::savePictureRequested, display, [=] {
        const QPixmap picture = display->clientPicture();
        const QString chosen = askForPictureName(frame);
        if (!chosen.isEmpty()) savePictureAs(picture, chosen, converterPath(), frame);
    });
    connect(frame, &frmMdi::backRequested, this, &Application::cmdBack_Click);
    connect(frame, &frmMdi::closed, this, &Application::unloadAll);
    input_->hide();
    frame->showInPlaceOf(*input_);
}

void Application::openAnalysis(AnalysisKind kind, const std::vector<TextRun>& palaceRuns) {
    std::vector<TextRun> runs{introRun()};
    runs.insert(runs.end(), palaceRuns.begin(), palaceRuns.end());
    frmPalaceAnalysis analysis{kind, runs, analysisView_, frame_.get()};
    connect(&analysis, &frmPalaceAnalysis::saveRequested, this, [this, &analysis] { saveChart(&analysis); });
    analysis.exec();
    analysisView_ = analysis.view();
}

// Intentional: a file that cannot be written is not reported.
void Application::saveChart(QWidget* parent) {
    const QString path = askWhereToSaveChart(parent);
    if (!path.isEmpty()) static_cast<void>(writeFile(path, chartFileBytes(chart_.input)));
}

// Deleted later, because a signal of the frame's own control is being handled.
void Application::cmdBack_Click() {
    input_->clearEntry();
    frame_->hide();
    input_->setScreen(frame_->screen());
    input_->show();
    frame_.release()->deleteLater();
    chart_.loadCells();
}

void Application::unloadAll() {
    for (QWidget* form : QApplication::topLevelWidgets()) form->hide();
    QCoreApplication::quit();
}
