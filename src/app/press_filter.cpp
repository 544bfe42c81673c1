#include "app/press_filter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <utility>

#include "style/controls.h"
#include "style/platform.h"

bool PressFilter::discards(QObject* receiver, QEvent* event) {
    auto* window = qobject_cast<QWindow*>(receiver);
    if (window == nullptr) return false;
    switch (event->type()) {
        case QEvent::KeyRelease:
            if (static_cast<QKeyEvent*>(event)->timestamp() == 0) return false;
            releasedKey_ = static_cast<QKeyEvent*>(event)->key();
            released_ = static_cast<QKeyEvent*>(event)->timestamp();
            return false;
        // Qt 6.8 still: the list of a QComboBox closes before the press. Under Wayland, that would go on to
        // the window behind.
        case QEvent::ShortcutOverride:
            popupIsOpen_ = QApplication::activePopupWidget() != nullptr;
            return false;
        case QEvent::KeyPress:
            return isRepeated(*static_cast<QKeyEvent*>(event)) ||
                   (std::exchange(popupIsOpen_, false) && QApplication::activePopupWidget() == nullptr);
        case QEvent::MouseButtonPress:
            discardsClick_ = isSecondClick(*static_cast<QMouseEvent*>(event), window);
            return discardsClick_;
        case QEvent::MouseButtonDblClick:
            return discardsClick_;
        default:
            return false;
    }
}

// Qt 6.8 still: isAutoRepeat() is often false under X11, which sends release and press at once, and true on
// Windows after a release that a closing window got. So only the key that was pressed last can repeat.
bool PressFilter::isRepeated(const QKeyEvent& key) {
    constexpr quint64 atOnce = 2;  // milliseconds
    const int code = key.key();
    const QWidget* focus = QApplication::focusWidget();
    const bool writes = focus != nullptr && focus->testAttribute(Qt::WA_InputMethodEnabled);
    const bool space = code == Qt::Key_Space && !writes;
    const bool follows = code == releasedKey_ && key.timestamp() - released_ <= atOnce;
    const bool repeated = key.isAutoRepeat() || (key.timestamp() != 0 && follows);
    const bool pressedLast = std::exchange(pressedKey_, code) == code;
    return (isEnter(code) || space) && repeated && pressedLast;
}

// Without known positions only the time counts, except from a popup to its parent, whose positions relate.
bool PressFilter::isSecondClick(const QMouseEvent& click, QWindow* window) {
    const QWindow* before = std::exchange(clickedWindow_, window);  // null where it has been closed
    const quint64 elapsed = click.timestamp() - std::exchange(clicked_, click.timestamp());
    const QPointF moved = click.globalPosition() - std::exchange(clickedPlace_, click.globalPosition());
    if (before == window || window->type() == Qt::Popup) return false;
    const bool fromPopup =
        before != nullptr && before->type() == Qt::Popup && before->transientParent() == window;
    const bool placesCount = placesAreKnown() || fromPopup;
    const bool near = !placesCount || moved.manhattanLength() <= QApplication::startDragDistance();
    return near && elapsed < static_cast<quint64>(QApplication::doubleClickInterval());
}
