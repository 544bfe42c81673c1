// Tells when a window is painted: not when painting is asked for, but when the X server has carried it out.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>

// Seconds of a clock that all processes share.
double monotonicSeconds();

class PaintWatch : public QObject {
  public:
    // Watches every widget of the application.
    PaintWatch();

    // Calls `painted` when a widget of that object name, or a child of it, has been painted and then left
    // alone for the quiet time: a window may be painted again as soon as the window manager has given it its
    // size. One wait at a time.
    void await(const QString& widget, int quietMilliseconds, std::function<void()> painted);

    // When the widget was painted for the last time before the quiet.
    double lastPainted() const { return lastPainted_; }

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void flushed();
    void settled();

    bool isAwaited(const QObject* object) const;

    QString widget_;
    std::function<void()> painted_;
    QTimer quiet_;
    bool flushing_ = false;
    double lastPainted_ = 0;
};
