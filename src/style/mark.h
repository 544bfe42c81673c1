// The program's mark, the lantern, sharp at every device pixel ratio.
#pragma once

#include <QLabel>

class Mark : public QLabel {
    Q_OBJECT
  public:
    // `size` is the height and width in pixels.
    explicit Mark(int size);

  protected:
    void paintEvent(QPaintEvent* event) override;
};
