// The transparent area over a palace cell: it is clicked and hovered over, holds the focus, and speaks for
// the cell to a screen reader.
#pragma once

#include "chart/cell_index.h"
#include "style/controls.h"

class LblCover : public PressArea {
    Q_OBJECT
  public:
    LblCover(CellIndex cell, QWidget* parent);

    // Whether pointer and focus are painted: on the screen, but not in a picture.
    void setMarked(bool marked) { marked_ = marked; }

  signals:
    void pointerChanged();  // entered the cell or left it
    void focusChanged(Qt::FocusReason reason);
    void stepWanted(int columnStep, int rowStep);

  protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    bool marked_ = true;
};
