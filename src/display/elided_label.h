// A label for one line of text that a person has entered. It is elided, and control characters are drawn as
// blanks; text() returns the whole.
#pragma once

#include <QLabel>

class ElidedLabel : public QLabel {
    Q_OBJECT
  public:
    explicit ElidedLabel(QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};
