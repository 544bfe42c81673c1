// The wiring of the forms: what each asks for by a signal is done here.
#pragma once

#include <QObject>
#include <memory>
#include <vector>

#include "chart/birth_entry.h"
#include "chart/chart_model.h"
#include "interpret/text_run.h"
#include "style/help_menu.h"

class frmDisplay;
class frmMain;
class frmMdi;
class frmPalaceAnalysis;
enum class AnalysisKind;

class Application : public QObject {
    Q_OBJECT
  public:
    Application();
    ~Application() override;

    // Shows the input form.
    void start();

    // Closes every open form, one after another, and ends the program.
    static void unloadAll();

  private:
    void connectInputForm();
    void connectChart();
    void showChart(const BirthEntry& entry);
    void openPalace(int cell);
    void openAllPalaces();
    void openAnalysis(AnalysisKind kind, const std::vector<TextRun>& runs);
    void saveChart(QWidget* parent);
    void savePicture();
    void goBack();
    void closeChart();
    void showAbout(QWidget* parent);

    ChartModel chart_;
    std::unique_ptr<frmMain> input_;
    std::unique_ptr<frmMdi> frame_;
    frmDisplay* display_ = nullptr;  // lives in the frame
};
