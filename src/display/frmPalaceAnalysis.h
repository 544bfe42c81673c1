// The analysis window: shows an analysis; that of all palaces can be printed, and the chart saved.
#pragma once

#include <QDialog>
#include <vector>

#include "interpret/text_run.h"

class QTextEdit;
class QVBoxLayout;

enum class AnalysisKind { onePalace, allPalaces };  // that of all can be saved and printed

// What a person can change of the view; it is kept from one analysis to the next.
struct AnalysisView {
    int textSize = 100;  // percentage of the runs' font sizes
    QSize size;          // of the window; invalid until a person resizes it
};

class frmPalaceAnalysis : public QDialog {
    Q_OBJECT
  public:
    // The window is never larger than the parent's screen.
    frmPalaceAnalysis(AnalysisKind kind, const std::vector<TextRun>& runs, const AnalysisView& view,
                      QWidget* parent);

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
    int turnedAngle_ = 0;  // of the wheel since the last step, in eighths of a degree
    QTextEdit* RTB;
};
