// Sees every key and click before the windows do, and passes over those that only go on with an earlier
// press, so that what one press opened, the same press does not close.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointF>
#include <QPointer>

class QKeyEvent;
class QMouseEvent;

class PressFilter : public QObject {
    Q_OBJECT
  public:
    using QObject::QObject;

    // Passes over Enter and Space as long as they are held down, and over the second half of a double click
    // whose first half went to another window.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool isHeldDown(const QKeyEvent& key) const;
    bool isSecondHalf(const QMouseEvent& click, QObject* window);

    int releasedKey_ = 0;
    QElapsedTimer sinceRelease_;
    QPointer<QObject> clickedWindow_;
    quint64 clicked_ = 0;  // by the display's clock, in milliseconds
    QPointF clickedPlace_;
    bool passesOver_ = false;  // the click that is going on
};
