// The transparent button over a palace cell: it takes clicks and the focus, shows hovering, and stands for
// the cell in the accessibility tree.
#pragma once

#include "chart/cell_index.h"
#include "style/controls.h"

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
