// What the chart window paints itself: the square of the chart, and what is over its cells.
#pragma once

#include <QWidget>

#include "display/chart_scale.h"
#include "style/controls.h"

// The background and the borders of all cells and the centre block.
class ChartSquare : public QWidget {
    Q_OBJECT
  public:
    using QWidget::QWidget;

    // Also resizes the square.
    void setScale(ChartScale scale);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    ChartScale scale_{naturalScale};
};

// The transparent button over a palace cell: it takes clicks and the focus, shows hovering, and stands for
// the cell in the accessibility tree.
class LblCover : public PressArea {
    Q_OBJECT
  public:
    LblCover(CellIndex cell, QWidget* parent);

    // Whether hovering and the focus are painted: on the screen, but not in an exported picture.
    void setMarked(bool marked) { marked_ = marked; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool marked_ = true;
};
