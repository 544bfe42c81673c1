// What a press has opened, the same press does not close.
#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QWindow>

class QKeyEvent;
class QMouseEvent;

class PressFilter {
  public:
    // Whether the event must not be delivered to its receiver: the auto-repeat of Enter, and of Space outside
    // text boxes; the second half of a double click whose first half went to another window, unless it goes
    // to a popup. To be called before any event filter: while assistive technology listens, Qt's own filter
    // replaces each key event by one without a timestamp.
    bool discards(QObject* receiver, QEvent* event);

  private:
    bool isRepeated(const QKeyEvent& key) const;
    bool isSecondHalf(const QMouseEvent& click, QWindow* window);

    int releasedKey_ = 0;
    quint64 released_ = 0;  // timestamp in milliseconds
    QPointer<QWindow> clickedWindow_;
    quint64 clicked_ = 0;  // timestamp in milliseconds
    QPointF clickedPlace_;
    bool discardsClick_ = false;  // the one that is going on
};
