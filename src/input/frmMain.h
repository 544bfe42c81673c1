// The input form, in which the name, date and time of birth are entered and checked.
#pragma once

#include <QDialog>

#include "chart/birth_entry.h"

class BannerLink;
class NameBox;
class QComboBox;
class QPushButton;
class QScrollArea;
struct ChartFileValues;

class frmMain : public QDialog {
    Q_OBJECT
  public:
    // Opens on 1 January 1970, 0:00, with an empty name.
    frmMain();

    void setVisible(bool visible) override;

    // Fills in the name and the date of a chart file. A value that is not in its list is ignored.
    void fillIn(const ChartFileValues& values);

    // Checks what fillIn() has filled in and moves the focus to the time of birth, which no chart file has.
    void askForTime();

    // Selects the date of the chart, which the midnight rule may have changed.
    void showDate(const PickedDate& date);

    // Clears the name and selects the first entry of every list.
    void clearEntry();

    void cmdGenerateChart_Click();

  signals:
    void entered(const BirthEntry& entry);  // which has passed the check
    void openRequested();
    void fileDropped(const QString& path);  // of a chart file
    void closed();

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void reject() override;

  private:
    void Form_Load();
    void cmdOpen_Click();
    void cmExit_Click();
    void considerDrop(QDropEvent* event);
    void fitToScreen();
    void followFont();
    void createControls();
    void createMenus();
    QComboBox* createList(const char* name);
    QWidget* createBanner();
    QWidget* createDetails();
    QWidget* createButtons();
    void txtName_KeyPress();
    bool passesCheck(const BirthEntry& birth);
    BirthEntry entry() const;

    QScrollArea* scroll_;
    BannerLink* lblBanner;
    NameBox* txtName;
    QComboBox* cmbDate;
    QComboBox* cmbMonth;
    QComboBox* cmbYear;
    QComboBox* cmbHour;
    QComboBox* cmbMinute;
    QPushButton* cmdGenerateChart;
};
