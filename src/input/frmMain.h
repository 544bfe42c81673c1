// The input form: a name, a date and a time go in; a chart is cast.
#pragma once

#include <QDialog>

#include "chart/birth_entry.h"
#include "chart/generate.h"
#include "input/input_check.h"
#include "style/help_menu.h"

class LinkLabel;
class NameBox;
class QComboBox;
class QLabel;
class QPushButton;
class QScrollArea;

class frmMain : public QDialog {
    Q_OBJECT
  public:
    // Casts into the given chart, which outlives the form. Opens on 1 January 1970, 0:00, with an empty name.
    explicit frmMain(ChartModel& chart);

    // Empties the name and takes every list back to its first entry.
    void clearEntry();

  public slots:
    void cmdGenerateChart_Click();
    void cmdOpen_Click();
    void cmExit_Click();

  signals:
    // A chart stands in the model; the entry is as the lists now stand.
    void chartGenerated(const BirthEntry& entry);
    void pageRequested(WebPage page);
    void aboutRequested();
    void closed();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void reject() override;

  private:
    void Form_Load();
    void fitToScreen();
    void createControls();
    void createMenus();
    QWidget* createBanner();
    QWidget* createDetails();
    QWidget* createButtons();
    void txtName_KeyRejected();
    BirthEntry entry() const;
    void select(const DateLists& date);
    void selectText(QComboBox* list, const std::string& text);
    bool passesCheck(const BirthEntry& birth);

    ChartModel& chart_;
    QScrollArea* scroll_;
    LinkLabel* lblBanner;
    NameBox* txtName;
    QComboBox* cmbDate;
    QComboBox* cmbMonth;
    QComboBox* cmbYear;
    QComboBox* cmbHour;
    QComboBox* cmbMinute;
    QPushButton* cmdGenerateChart;
    QPushButton* cmdOpen;
    QPushButton* cmExit;
};
