// The square of the chart, which draws the paper and the lines of all cells, and the frame of a cell in it,
// which holds the cell's labels.
#pragma once

#include <QWidget>

#include "chart/cell_index.h"
#include "display/label_places.h"

class ChartSquare : public QWidget {
    Q_OBJECT
  public:
    explicit ChartSquare(QWidget* parent);

    // The scale at which the square is drawn; its size is to be that scale's squareSize().
    void setScale(ChartScale scale);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    ChartScale scale_{naturalScale};
};

class CellSquare : public QWidget {
    Q_OBJECT
  public:
    CellSquare(CellIndex cell, QWidget* parent);
};
