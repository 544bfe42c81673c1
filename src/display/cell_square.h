// The square of the chart, and the frame of a palace cell in it, which holds the cell's labels.
#pragma once

#include <QWidget>

#include "chart/cell_index.h"

class ChartSquare : public QWidget {
    Q_OBJECT
  public:
    using QWidget::QWidget;
};

class CellSquare : public QWidget {
    Q_OBJECT
  public:
    CellSquare(CellIndex cell, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};
