// The chart window: twelve palace cells round a centre block, drawn by labels that are filled or shown.
#pragma once

#include <QLabel>
#include <QWidget>
#include <array>

#include "chart/birth_entry.h"
#include "chart/chart_model.h"
#include "display/chart_scale.h"
#include "display/label_places.h"

class ChartSquare;
class LblCover;
class QMenuBar;
class QScrollArea;

class frmDisplay : public QWidget {
    Q_OBJECT
  public:
    // Shows the chart, and the entry as the lists of the input form stand.
    frmDisplay(const ChartModel& chart, const BirthEntry& entry);
    ~frmDisplay() override;

    // The window at the largest scale whose chart goes into the room, or scrolling where none does. Returns
    // the window's size then, at most as large as the room.
    QSize fitInto(const QSize& room);

    // Opens the menu whose access key this is, if there is one.
    void openMenu(int key);

    // The client area as on the screen, at the screen's own resolution, without the menu, the focus and the
    // pointer; where the chart scrolls, all of it.
    QPixmap clientPicture();

  signals:
    void palaceClicked(int cell);
    void showAllRequested();
    void savePictureRequested();
    void backRequested();
    void exitRequested();
    void tabbedOut(bool forwards);  // the Tab key left the chart

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    using CellLabels = std::array<QLabel*, cellLabels.size()>;

    void createGround();
    void createMenus();
    void createCell(CellIndex cell, const ChartCell& content);
    void createCover(CellIndex cell, const ChartModel& chart);
    void createCentre();
    QLabel* createLabel(QWidget* parent, std::string_view name, LabelKind kind);
    void fillHeader(const ChartModel& chart, const BirthEntry& entry);
    void applyScale(ChartScale scale);
    void placeCells();
    void placeCentre();
    void showHint();
    void followFocus(LblCover* cover, Qt::FocusReason reason);
    void moveFocus(CellIndex from, int columnStep, int rowStep);

    QMenuBar* menus_;
    QScrollArea* scroll_;
    QWidget* gfg;         // the ground on which all lies
    ChartSquare* Frame1;  // the square
    QWidget* Frame2;      // the centre block
    QLabel* lblCaption;
    std::array<QWidget*, cellCount> Square{};
    std::array<LblCover*, cellCount> lblCover{};
    std::array<CellLabels, cellCount> labels_{};
    std::array<bool, cellCount> holdsZiWei_{};
    std::array<QLabel*, centreLabels.size()> centre_{};
    ChartScale scale_{naturalScale};
    bool keysLead_ = false;  // keys have moved the focus since the pointer last moved
};
