// The frame round the fields of the input form.
#pragma once

#include <QEvent>
#include <QGroupBox>

class DetailsFrame : public QGroupBox {
    Q_OBJECT
  public:
    using QGroupBox::QGroupBox;

  protected:
    // The toolkit's own frame swallows Enter on desktops where Enter presses buttons, as if it could be
    // checked; Enter in a field must reach the form's default button everywhere.
    bool event(QEvent* event) override {
        const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
        return key ? QWidget::event(event) : QGroupBox::event(event);
    }
};
