// A drop-down list that the wheel turns only while it has the focus, and that leaves Enter to its form.
#pragma once

#include <QComboBox>

class DropDownList : public QComboBox {
    Q_OBJECT
  public:
    DropDownList();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};
