// The analysis window: the runs of an analysis as styled text, to be read, printed or, for the whole chart,
// kept as a chart file.
#pragma once

#include <QDialog>
#include <vector>

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
    // Shows the runs one after another, each in its own style, with CR LF as one line break. The text's size
    // is in per cent of the runs' own.
    frmPalaceAnalysis(AnalysisKind kind, const std::vector<TextRun>& runs, int textSize, QWidget* parent);

  signals:
    void saveRequested();
    void textSizeChosen(int percent);

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
    int textSize_;
    QTextEdit* RTB;
    QPushButton* cmdSave;
    QPushButton* cmdPrint;
    QPushButton* cmdOk;
};
