// The product's name on a form: a button that looks like a link and opens the home page.
#pragma once

#include "style/controls.h"

class BannerLink : public PressArea {
    Q_OBJECT
  public:
    BannerLink(const QFont& font, QWidget* form, QWidget* parent);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};
