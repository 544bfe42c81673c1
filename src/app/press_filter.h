// The press that opens a window does not also act on what it opened.
#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QWindow>

class QKeyEvent;
class QMouseEvent;

class PressFilter {
  public:
    // Whether the event must not be delivered: the auto-repeat of Enter, and of Space outside text boxes; and
    // the second click of a double click whose first went to another window, unless a popup gets the second.
    // Must run before any event filter: that of Qt's accessibility bridge sends keys on without timestamps.
    bool discards(QObject* receiver, QEvent* event);

  private:
    bool isRepeated(const QKeyEvent& key);
    bool isSecondClick(const QMouseEvent& click, QWindow* window);

    int pressedKey_ = 0;
    int releasedKey_ = 0;
    quint64 released_ = 0;  // timestamp in milliseconds
    QPointer<QWindow> clickedWindow_;
    quint64 clicked_ = 0;  // timestamp in milliseconds
    QPointF clickedPlace_;
    bool discardsClick_ = false;  // the current one
};
