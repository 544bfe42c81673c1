// The transparent area over a palace cell: it takes clicks and hovering, can hold the focus, and is what a
// screen reader knows of the cell.
#pragma once

#include <QAbstractButton>

#include "chart/cell_index.h"

class LblCover : public QAbstractButton {
    Q_OBJECT
  public:
    LblCover(CellIndex cell, QWidget* parent);

    // Whether the pointer is in the cell or the focus on it.
    bool isPointedAt() const { return underMouse() || hasFocus(); }

    // Whether pointer and focus are seen, as on the screen, or not, as in a picture.
    void setMarked(bool marked) { marked_ = marked; }

  signals:
    void pointedAtOrLeft();
    void focused(Qt::FocusReason reason);
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
