#include "app/press_filter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

#include "style/controls.h"

bool PressFilter::eventFilter(QObject* watched, QEvent* event) {
    if (!watched->isWindowType()) return false;
    switch (event->type()) {
        case QEvent::KeyRelease:
            releasedKey_ = static_cast<QKeyEvent*>(event)->key();
            sinceRelease_.start();
            return false;
        case QEvent::KeyPress:
            return isHeldDown(*static_cast<QKeyEvent*>(event));
        case QEvent::MouseButtonPress:
            passesOver_ = isSecondHalf(*static_cast<QMouseEvent*>(event), watched);
            return passesOver_;
        case QEvent::MouseButtonDblClick:
            return passesOver_;
        default:
            return false;
    }
}

// The X server reports a held key as released and pressed again at once, and Qt 6.4 does not always notice.
bool PressFilter::isHeldDown(const QKeyEvent& key) const {
    constexpr qint64 atOnce = 25;  // milliseconds; no hand is as quick
    const int code = key.key();
    const bool enter = code == Qt::Key_Return || code == Qt::Key_Enter;
    const bool goesOn = enter && code == releasedKey_ && sinceRelease_.elapsed() < atOnce;
    return goesOn || (key.isAutoRepeat() && (enter || code == Qt::Key_Space));
}

bool PressFilter::isSecondHalf(const QMouseEvent& click, QObject* window) {
    const QObject* before = std::exchange(clickedWindow_, window);
    const quint64 time = click.timestamp() - std::exchange(clicked_, click.timestamp());
    const QPointF way = click.globalPosition() - std::exchange(clickedPlace_, click.globalPosition());
    const bool near = !placesAreKnown() || way.manhattanLength() <= QApplication::startDragDistance();
    return before != nullptr && before != window && near &&
           time < static_cast<quint64>(QApplication::doubleClickInterval());
}
