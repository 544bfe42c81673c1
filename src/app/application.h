// Owns the chart, opens and saves its files, and does what the forms ask for by their signals.
#pragma once

#include <QObject>
#include <memory>
#include <vector>

#include "chart/birth_entry.h"
#include "chart/chart_model.h"
#include "display/analysis_view.h"
#include "interpret/text_run.h"

class QWidget;
class frmDisplay;
class frmMain;
class frmMdi;
enum class AnalysisKind;

class Application : public QObject {
    Q_OBJECT
  public:
    Application();
    ~Application() override;

    // Shows the input form, filled in from a chart file if one is given.
    void start(const QString& chartFile = {});

    // Closes every open form, one after another, and ends the program.
    static void unloadAll();

  private:
    void askForAndOpenChart();
    void openAndCastChart(const QString& path);
    bool openChart(const QString& path);
    void castChart(const BirthEntry& entry);
    void showChart(const BirthEntry& entry);
    void connectChart(frmDisplay* display);
    void openPalace(int cell);
    void openAllPalaces();
    void openAnalysis(AnalysisKind kind, const std::vector<TextRun>& runs);
    void saveChart(QWidget* parent);
    void cmdBack_Click();

    ChartModel chart_;
    std::unique_ptr<frmMain> input_;
    std::unique_ptr<frmMdi> frame_;  // while a chart is shown
    AnalysisView analysisView_;      // as the last analysis was left
};
