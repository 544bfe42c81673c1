// A label for one line of a person's own text: text that is too long for the label ends in an ellipsis on the
// screen, and characters that would break the line are drawn as blanks. text() stays what it was given.
#pragma once

#include <QLabel>

class ElidedLabel : public QLabel {
    Q_OBJECT
  public:
    explicit ElidedLabel(QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;
};
