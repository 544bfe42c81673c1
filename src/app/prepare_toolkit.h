// The QApplication of the program, and what is set up once for all of its windows.
#pragma once

#include <QApplication>

#include "app/press_filter.h"

class Toolkit : public QApplication {
    Q_OBJECT
  public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

  private:
    PressFilter presses_;
};

// Sets the program's name, font, icon and style, dialogs that are Qt's own on every desktop, and the chart's
// accessibility. The Toolkit must exist.
void prepareToolkit();
