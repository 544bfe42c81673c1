// The input form: a name, a date and a time go in, checked, and are handed over.
#pragma once

#include <QDialog>

#include "chart/birth_entry.h"

class BannerLink;
class NameBox;
class QComboBox;
class QGridLayout;
class QPushButton;
class QScrollArea;
struct ChartFileValues;

class frmMain : public QDialog {
    Q_OBJECT
  public:
    // Opens on 1 January 1970, 0:00, with an empty name.
    frmMain();

    void setVisible(bool visible) override;

    // Shows the form on the screen of the frame that it takes the place of.
    void showInPlaceOf(const QWidget& frame);

    // Fills in the name and the date of a chart file. A value that is no entry leaves its list as it was.
    void fillIn(const ChartFileValues& values);

    // For a chart file that was opened with the program: checks what was filled in and moves the focus to the
    // time of birth, which no chart file holds.
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
    void openRequested();
    void fileDropped(const QString& path);  // one with the ending of a chart file
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
    void considerDrop(QDropEvent* event);
    void fitToScreen();
    void followFont();
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
    BannerLink* lblBanner;
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
