// A combo box that handles the wheel only while it has the focus, and leaves Enter to its form.
#pragma once

#include <QComboBox>

class DropDownList : public QComboBox {
    Q_OBJECT
  public:
    DropDownList();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    bool hasOwnView_ = false;
};
