// The chart window: twelve palace cells round a centre block, drawn by labels that are filled or shown.
#pragma once

#include <QLabel>
#include <QWidget>
#include <array>
#include <vector>

#include "chart/birth_entry.h"
#include "chart/chart_model.h"
#include "display/label_places.h"
#include "display/lbl_cover.h"
#include "style/help_menu.h"

class CellSquare;
class ChartSquare;
class QMenuBar;
class QScrollArea;

class frmDisplay : public QWidget {
    Q_OBJECT
  public:
    frmDisplay();
    ~frmDisplay() override;

    // Fills cells and header from the chart and from the entry as the lists now stand.
    void showChart(const ChartModel& chart, const BirthEntry& entry);

    // The window at the largest scale whose chart goes into the room, or scrolling where none does. Returns
    // the window's size then, at most as large as the room.
    QSize fitInto(const QSize& room);

    // Opens the menu whose access key this is, if there is one.
    void openMenu(int key);

    // The client area as on the screen, at the screen's own resolution, without the menu.
    QPixmap clientPicture();

  signals:
    void palaceClicked(int cell);
    void showAllRequested();
    void savePictureRequested();
    void backRequested();
    void exitRequested();
    void pageRequested(WebPage page);
    void aboutRequested();
    void tabbedOut(bool forwards);  // the Tab key left the chart

  protected:
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void createMenus();
    void createCells();
    void createCentre();
    void fillHeader(const ChartModel& chart, const BirthEntry& entry);
    void fillCells(const ChartModel& chart);
    void leadWithZiWei();
    void applyScale(ChartScale scale);
    void placeCells();
    void placeCentre();
    void lblCover_Hover();
    void background_Hover();
    void makeTabStop();
    void moveFocus(CellIndex from, int columnStep, int rowStep);
    QLabel* centreLabel(std::string_view name) const;

    using CellLabels = std::array<QLabel*, 35>;

    QMenuBar* menus_;
    QScrollArea* scroll_;
    QWidget* gfg;         // the ground on which all lies
    ChartSquare* Frame1;  // the square
    QWidget* Frame2;      // the centre block
    QLabel* lblCaption;
    std::array<CellSquare*, cellCount> Square{};
    std::array<LblCover*, cellCount> lblCover{};
    std::array<CellLabels, cellCount> labels_{};
    std::array<bool, cellCount> holdsZiWei_{};
    std::vector<QLabel*> centre_;
    ChartScale scale_{naturalScale};
};
