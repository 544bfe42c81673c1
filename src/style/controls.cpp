#include "style/controls.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcutEvent>

bool mayAct(const QWidget& form) {
    const QWidget* dialog = QApplication::activeModalWidget();
    return form.isVisible() && (dialog == nullptr || dialog == form.window());
}

bool CommandButton::event(QEvent* event) {
    if (event->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(event)->isAmbiguous())
        return QPushButton::event(event);
    click();
    return true;
}

void PressArea::keyPressEvent(QKeyEvent* event) {
    isEnter(event->key()) ? click() : QAbstractButton::keyPressEvent(event);
}

QMenuBar* newMenuBar(QWidget* window) {
    auto* menus = new QMenuBar{window};
    menus->setNativeMenuBar(false);
    menus->setContextMenuPolicy(Qt::PreventContextMenu);
    return menus;
}
