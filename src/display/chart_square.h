// The square of the chart: the background and the borders of all cells and the centre block.
#pragma once

#include <QWidget>

#include "display/chart_scale.h"

class ChartSquare : public QWidget {
    Q_OBJECT
  public:
    explicit ChartSquare(QWidget* parent);

    // Also resizes the square.
    void setScale(ChartScale scale);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    ChartScale scale_{naturalScale};
};
