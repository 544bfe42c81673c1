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

// Sets name, font, icon, style, the chart's accessibility and Qt's own dialogs; to be called once.
void prepareToolkit();
