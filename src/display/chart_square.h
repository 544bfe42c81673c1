// The square of the chart: the paper and the lines of all cells and the centre block.
#pragma once

#include <QWidget>

#include "display/chart_scale.h"

class ChartSquare : public QWidget {
    Q_OBJECT
  public:
    explicit ChartSquare(QWidget* parent);

    // The scale at which the square is drawn, which also fixes its size.
    void setScale(ChartScale scale);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    ChartScale scale_{naturalScale};
};
