// What the benchmark and the programs that it starts share: clocks, the watch for painted windows, and a
// window of plain labels.
#pragma once

#include <xcb/xcb.h>

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QLabel>
#include <QTimer>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

// Milliseconds of a clock that all processes share, and of processor time that this one has taken.
inline double wallMilliseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::milli>(now).count();
}
inline double processorMilliseconds() { return static_cast<double>(std::clock()) * 1e3 / CLOCKS_PER_SEC; }

// MiB that the process holds ("VmRSS:"), or the most that it ever held ("VmHWM:").
inline double memory(const char* kind) {
    QFile status{QStringLiteral("/proc/self/status")};
    if (!status.open(QIODevice::ReadOnly)) return 0;
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf(kind)).simplified().split(' ').value(1).toDouble() / 1024;
}

// The control of that object name in any window, or nothing.
template <class Control>
Control* control(const char* name) {
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget* widget : all) {
        if (widget->objectName() == QLatin1String(name)) return qobject_cast<Control*>(widget);
    }
    return nullptr;
}

// Tells when a window is painted: not when painting is asked for, but when the X server has carried it out.
class PaintWatch : public QObject {
  public:
    using Settled = std::function<void(double painted)>;

    // Watches every widget of the application.
    PaintWatch() {
        quiet_.setSingleShot(true);
        quiet_.setTimerType(Qt::PreciseTimer);
        connect(&quiet_, &QTimer::timeout, this, [this] { std::exchange(settled_, nullptr)(painted_); });
        qApp->installEventFilter(this);
    }

    // Calls `settled` when a widget of that object name, or a child of it, has been painted and then left
    // alone for the quiet time: a window may be painted again as soon as the window manager has given it its
    // size. It is told when the last painting was through. One wait at a time.
    void await(const QString& widget, int quietMilliseconds, Settled settled) {
        widget_ = widget;
        settled_ = std::move(settled);
        quiet_.setInterval(quietMilliseconds);
    }

  protected:
    // The paint events of a window and the sending of its pixels to the server are one step of the event
    // loop, so what is queued in its midst comes after it.
    bool eventFilter(QObject* object, QEvent* event) override {
        const auto isAwaited = [this](const QObject* each) { return each && each->objectName() == widget_; };
        if (event->type() != QEvent::Paint || flushing_ || !settled_) return false;
        if (!isAwaited(object) && !isAwaited(object->parent())) return false;
        flushing_ = true;
        QMetaObject::invokeMethod(this, &PaintWatch::flushed, Qt::QueuedConnection);
        return false;
    }

  private:
    // One request and its answer: then the server has carried out all that it was sent before.
    void flushed() {
        auto* server = qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
        std::free(xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
        painted_ = wallMilliseconds();
        flushing_ = false;
        if (settled_) quiet_.start();
    }

    QString widget_;
    Settled settled_;
    QTimer quiet_;
    bool flushing_ = false;
    double painted_ = 0;
};

// A label's text as it is seen, and its place in the window.
struct PlainLabel {
    QString text;
    QRect place;
};

// A maximised window of plain labels, to set beside the chart. What is bare bears the name of what it stands
// beside.
inline std::unique_ptr<QWidget> plainLabels(const std::vector<PlainLabel>& labels) {
    auto window = std::make_unique<QWidget>();
    window->setObjectName(QStringLiteral("gfg"));
    for (const PlainLabel& label : labels) (new QLabel{label.text, window.get()})->setGeometry(label.place);
    window->showMaximized();
    return window;
}
