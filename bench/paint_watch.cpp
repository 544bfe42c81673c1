#include "paint_watch.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <QEvent>
#include <chrono>
#include <cstdlib>
#include <utility>

namespace {

// Returns when the server has carried out all that it was sent before.
void synchronise() {
    xcb_connection_t* server = qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
    std::free(xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
}

}  // namespace

double monotonicSeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

PaintWatch::PaintWatch() {
    quiet_.setSingleShot(true);
    quiet_.setTimerType(Qt::PreciseTimer);
    connect(&quiet_, &QTimer::timeout, this, &PaintWatch::settled);
    qApp->installEventFilter(this);
}

void PaintWatch::await(const QString& widget, int quietMilliseconds, std::function<void()> painted) {
    widget_ = widget;
    painted_ = std::move(painted);
    quiet_.setInterval(quietMilliseconds);
}

// The paint events of a window and the sending of its pixels to the server are one step of the event loop, so
// what is queued in its midst comes after it.
bool PaintWatch::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::Paint || flushing_ || !painted_ || !isAwaited(object)) return false;
    flushing_ = true;
    QMetaObject::invokeMethod(this, &PaintWatch::flushed, Qt::QueuedConnection);
    return false;
}

bool PaintWatch::isAwaited(const QObject* object) const {
    return object->objectName() == widget_ ||
           (object->parent() != nullptr && object->parent()->objectName() == widget_);
}

void PaintWatch::flushed() {
    synchronise();
    lastPainted_ = monotonicSeconds();
    flushing_ = false;
    if (painted_) quiet_.start();
}

void PaintWatch::settled() { std::exchange(painted_, nullptr)(); }
