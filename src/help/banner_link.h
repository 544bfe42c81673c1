// The product's name on a form, which opens the home page: by a click, or by Enter or Space while it has the
// focus.
#pragma once

#include "style/controls.h"

class BannerLink : public PressArea {
    Q_OBJECT
  public:
    // On a form, in the font given.
    BannerLink(const QFont& font, QWidget* form, QWidget* parent);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};
