// Owns the chart, opens and saves its files, and connects the forms.
#pragma once

#include <QObject>
#include <memory>
#include <vector>

#include "chart/birth_entry.h"
#include "chart/chart_model.h"
#include "display/frmPalaceAnalysis.h"

class frmMain;
class frmMdi;

class Application : public QObject {
    Q_OBJECT
  public:
    Application();
    ~Application() override;

    // Shows the input form, filled in from the chart file if there is one.
    void start(const QString& chartFile = {});

    // Hides every window and ends the event loop.
    static void unloadAll();

  private:
    void openAndCastChart(const QString& path);
    bool openChart(const QString& path);
    void castChart(const BirthEntry& entry);
    void showChart(const BirthEntry& entry);
    void openAnalysis(AnalysisKind kind, const std::vector<TextRun>& runs);
    void saveChart(QWidget* parent);
    void cmdBack_Click();

    ChartModel chart_;
    std::unique_ptr<frmMain> input_;
    std::unique_ptr<frmMdi> frame_;  // while a chart is shown
    AnalysisView analysisView_;      // of the last analysis
};
