// The analysis window: the runs of an analysis as styled text, to be read, printed or, for the whole chart,
// kept as a chart file.
#pragma once

#include <QDialog>
#include <vector>

#include "display/analysis_view.h"
#include "interpret/text_run.h"

class QPushButton;
class QTextEdit;
class QVBoxLayout;

enum class AnalysisKind {
    onePalace,   // to be read and closed
    allPalaces,  // to be saved and printed as well
};

class frmPalaceAnalysis : public QDialog {
    Q_OBJECT
  public:
    // Shows the runs one after another, each in its own style, with CR LF as one line break, in a window that
    // is never larger than the parent's screen.
    frmPalaceAnalysis(AnalysisKind kind, const std::vector<TextRun>& runs, const AnalysisView& view,
                      QWidget* parent);

    // The view as a person has left it.
    AnalysisView view() const;

  signals:
    void saveRequested();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void createText();
    void createButtons(QVBoxLayout* rows);
    void createMenus();
    void createKeys();
    void fitToScreen();
    void cmdPrint_Click();
    void setTextSize(int percent);
    void stepTextSize(bool larger);

    AnalysisKind kind_;
    std::vector<TextRun> runs_;
    AnalysisView view_;
    QSize firstSize_;      // of the window
    int turnedAngle_ = 0;  // of the wheel, in eighths of a degree, short of a step
    QTextEdit* RTB;
    QPushButton* cmdSave;
    QPushButton* cmdPrint;
    QPushButton* cmdOk;
};
