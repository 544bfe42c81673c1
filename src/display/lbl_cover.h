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

  signals:
    void pointerChanged();  // entered the cell or left it
    void focusChanged(Qt::FocusReason reason);
    void stepWanted(QPoint step);  // one column or one row, by an arrow key

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    bool marked_ = true;
};
