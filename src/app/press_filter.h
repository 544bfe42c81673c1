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
    // Whether the event must not be delivered: the auto-repeat of Enter, and of Space outside text boxes; a
    // key that has closed a list; the second click of a double click whose first went to another window,
    // unless a popup gets it. Must run before event filters: Qt's accessibility bridge drops key timestamps.
    bool discards(QObject* receiver, QEvent* event);

  private:
    bool isRepeated(const QKeyEvent& key);
    bool isSecondClick(const QMouseEvent& click, QWindow* window);

    bool popupIsOpen_ = false;  // before the current key
    int pressedKey_ = 0;
    int releasedKey_ = 0;
    quint64 released_ = 0;  // timestamp in milliseconds
    QPointer<QWindow> clickedWindow_;
    quint64 clicked_ = 0;  // timestamp in milliseconds
    QPointF clickedPlace_;
    bool discardsClick_ = false;  // the current one
};
