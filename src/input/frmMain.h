// The input form: a name, a date and a time go in, checked, and are handed over.
#pragma once

#include <QDialog>

#include "chart/birth_entry.h"

class NameValidator;
class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;
class QScrollArea;

class frmMain : public QDialog {
    Q_OBJECT
  public:
    // Opens on 1 January 1970, 0:00, with an empty name.
    frmMain();

    void setVisible(bool visible) override;

    // Fills the name and the date lists from a chart file and returns whether it could be read; a value that
    // is no entry leaves its list as it was. Says so where the name or the file is not that of a chart file;
    // the form then stays as it is.
    bool fillFrom(const QString& path);

    // For a chart file that was opened with the program: the time, which no chart file keeps, comes next.
    void askForTime();

    // Selects the date for which the chart was cast, which the midnight rule may have moved.
    void showDate(const PickedDate& date);

    // Says that no chart can be cast for the date.
    void refuseDate();

    // Empties the name and takes every list back to its first entry.
    void clearEntry();

  public slots:
    void cmdGenerateChart_Click();
    void cmdOpen_Click();
    void cmExit_Click();

  signals:
    void entered(const BirthEntry& entry);  // has passed the check
    void closed();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void reject() override;

  private:
    void Form_Load();
    void fitToScreen();
    void createControls();
    void createMenus();
    QWidget* createBanner();
    QWidget* createDetails();
    QWidget* createButtons();
    void addList(QGridLayout* grid, int row, int column, const char* heading, QComboBox* list);
    void txtName_KeyPress();
    bool passesCheck(const BirthEntry& birth);
    BirthEntry entry() const;

    QScrollArea* scroll_;
    QLineEdit* txtName;
    NameValidator* filter_;
    QComboBox* cmbDate;
    QComboBox* cmbMonth;
    QComboBox* cmbYear;
    QComboBox* cmbHour;
    QComboBox* cmbMinute;
    QPushButton* cmdGenerateChart;
    QPushButton* cmdOpen;
    QPushButton* cmExit;
};
