// The chart window: twelve palace cells round a centre block, each with its labels.
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
    // The entry is that of the input form, with the date that the midnight rule may have changed.
    frmDisplay(const ChartModel& chart, const BirthEntry& entry);

    // Scales the chart to the room, or lets it scroll where it would be illegible. Returns the size that the
    // window then needs, which is never larger than the room.
    QSize fitInto(const QSize& room);

    // Opens the menu with this access key, if there is one.
    void openMenu(int key);

    // The client area at the screen's device pixel ratio, without the menu bar, the focus and hovering; the
    // whole chart where it scrolls.
    QPixmap clientPicture();

  signals:
    void palaceClicked(int cell);
    void showAllRequested();
    void savePictureRequested();
    void backRequested();
    void exitRequested();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

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
    bool coverEvent(LblCover* cover, QEvent* event);
    bool moveFocus(const LblCover* from, int key);
    void followFocus(LblCover* cover, Qt::FocusReason reason);

    QMenuBar* menus_;
    QScrollArea* scroll_;
    QWidget* gfg;         // the background of all
    ChartSquare* Frame1;  // the square
    QWidget* Frame2;      // the centre block
    QLabel* lblCaption;
    std::array<QWidget*, cellCount> Square{};
    std::array<LblCover*, cellCount> lblCover{};
    std::array<CellLabels, cellCount> labels_{};
    std::array<bool, cellCount> holdsZiWei_{};
    std::array<QLabel*, centreLabels.size()> centre_{};
    ChartScale scale_{naturalScale};
    bool keysLead_ = false;  // whether the focus has moved by a key since the pointer last moved
};
