// The analysis window: the runs of an analysis as styled text, to be read, printed or, for the whole chart,
// kept as a chart file.
#pragma once

#include <QDialog>

#include "interpret/text_run.h"
#include "style/help_menu.h"

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
    frmPalaceAnalysis(AnalysisKind kind, QWidget* parent);

    // Adds the runs at the end of the text, each in its own style; CR LF makes one line break.
    void append(const std::vector<TextRun>& runs);

  signals:
    void saveRequested();
    void pageRequested(WebPage page);
    void aboutRequested();

  private:
    void createText();
    void createButtons(AnalysisKind kind, QVBoxLayout* rows);
    void createMenus();
    void fitToScreen();
    void cmdPrint_Click();

    QTextEdit* RTB;
    QPushButton* cmdSave;
    QPushButton* cmdPrint;
    QPushButton* cmdOk;
};
