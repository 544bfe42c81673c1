// The frame of a palace cell, which holds the cell's labels.
#pragma once

#include <QWidget>

#include "chart/cell_index.h"

class CellSquare : public QWidget {
    Q_OBJECT
  public:
    CellSquare(CellIndex cell, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};
