// An application-wide event filter: what a press has opened, the same press does not close.
#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QWindow>

class QKeyEvent;
class QMouseEvent;

class PressFilter : public QObject {
    Q_OBJECT
  public:
    using QObject::QObject;

    // Discards the auto-repeat of Enter, and of Space outside text boxes; and the second half of a double
    // click whose first half went to another window, unless it goes to a popup.
    bool eventFilter(QObject* watched, QEvent* event) override;

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
