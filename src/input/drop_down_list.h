// A drop-down list that asks for as much room as its widest entry, which it is told, so that it need not
// measure every entry, and that drops down below its box and scrolls.
#pragma once

#include <QComboBox>

class DropDownList : public QComboBox {
    Q_OBJECT
  public:
    explicit DropDownList(QString widestEntry);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    void showPopup() override;

  private:
    QString widestEntry_;
    QStyle* style_ = nullptr;
};
