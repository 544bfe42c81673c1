#include "app/application.h"

#include <QApplication>
#include <QFile>

#include "app/frmAbout.h"
#include "app/frmMdi.h"
#include "app/required_file.h"
#include "app/web_pages.h"
#include "display/frmDisplay.h"
#include "display/frmPalaceAnalysis.h"
#include "files/chart_file.h"
#include "files/file_dialogs.h"
#include "files/picture_export.h"
#include "input/frmMain.h"
#include "interpret/composer.h"

Application::Application() : input_(std::make_unique<frmMain>(chart_)) { connectInputForm(); }

Application::~Application() = default;

void Application::start() { input_->show(); }

void Application::connectInputForm() {
    frmMain* form = input_.get();
    connect(form, &frmMain::chartGenerated, this, &Application::showChart);
    connect(form, &frmMain::pageRequested, this, [form](WebPage page) { openPage(page, form); });
    connect(form, &frmMain::aboutRequested, this, [this, form] { showAbout(form); });
    connect(form, &frmMain::closed, this, &Application::unloadAll);
}

void Application::showChart(const BirthEntry& entry) {
    frame_ = std::make_unique<frmMdi>();
    display_ = new frmDisplay;
    display_->showChart(chart_, entry);
    frame_->hostChart(display_, [this](QSize room) { return display_->fitInto(room); });
    connectChart();
    frame_->showMaximized();
    input_->hide();
}

void Application::connectChart() {
    connect(display_, &frmDisplay::palaceClicked, this, &Application::openPalace);
    connect(display_, &frmDisplay::showAllRequested, this, &Application::openAllPalaces);
    connect(display_, &frmDisplay::savePictureRequested, this, &Application::savePicture);
    connect(display_, &frmDisplay::backRequested, this, &Application::goBack);
    connect(display_, &frmDisplay::exitRequested, this, &Application::unloadAll);
    connect(display_, &frmDisplay::tabbedOut, frame_.get(), &frmMdi::focusStrip);
    connect(display_, &frmDisplay::pageRequested, this,
            [this](WebPage page) { openPage(page, frame_.get()); });
    connect(display_, &frmDisplay::aboutRequested, this, [this] { showAbout(frame_.get()); });
    connect(frame_.get(), &frmMdi::showAllRequested, this, &Application::openAllPalaces);
    connect(frame_.get(), &frmMdi::savePictureRequested, this, &Application::savePicture);
    connect(frame_.get(), &frmMdi::backRequested, this, &Application::goBack);
    connect(frame_.get(), &frmMdi::menuKeyPressed, display_, &frmDisplay::openMenu);
    connect(frame_.get(), &frmMdi::exitRequested, this, &Application::unloadAll);
    connect(frame_.get(), &frmMdi::homePageRequested, this,
            [this] { openPage(WebPage::home, frame_.get()); });
}

void Application::openPalace(int cell) {
    openAnalysis(AnalysisKind::onePalace, composePalaceAnalysis(chart_, cell));
}

void Application::openAllPalaces() { openAnalysis(AnalysisKind::allPalaces, composeAllPalaces(chart_)); }

// Made anew for each opening, and gone when it is closed.
void Application::openAnalysis(AnalysisKind kind, const std::vector<TextRun>& runs) {
    frmPalaceAnalysis analysis{kind, frame_.get()};
    connect(&analysis, &frmPalaceAnalysis::saveRequested, this, [this, &analysis] { saveChart(&analysis); });
    connect(&analysis, &frmPalaceAnalysis::pageRequested, this,
            [&analysis](WebPage page) { openPage(page, &analysis); });
    connect(&analysis, &frmPalaceAnalysis::aboutRequested, this, [this, &analysis] { showAbout(&analysis); });
    analysis.append({introRun()});
    analysis.append(runs);
    analysis.exec();
}

void Application::saveChart(QWidget* parent) {
    const QString path = askWhereToSaveChart(parent);
    if (!path.isEmpty()) writeChartFile(QFile::encodeName(path).toStdString(), chart_.input);
}

void Application::savePicture() { exportPicture(display_->clientPicture(), converterPath(), frame_.get()); }

void Application::goBack() {
    input_->clearEntry();
    closeChart();
    input_->show();
}

// Later, since it is the chart's own button or menu that asks for it.
void Application::closeChart() {
    display_ = nullptr;
    frame_->disconnect(this);
    frame_->hide();
    frame_.release()->deleteLater();
}

void Application::showAbout(QWidget* parent) {
    frmAbout about{parent};
    about.exec();
}

void Application::unloadAll() {
    const QWidgetList forms = QApplication::topLevelWidgets();
    for (QWidget* form : forms) form->hide();
    QCoreApplication::quit();
}
