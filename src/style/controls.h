// The controls of all forms: how they are named, when they act, and what presses them.
#pragma once

#include <QMenuBar>
#include <QPushButton>
#include <functional>
#include <string_view>

#include "style/text.h"

// Gives the control its name and returns it.
template <class Control>
Control* named(Control* control, std::string_view name) {
    control->setObjectName(latin(name));
    return control;
}

// Whether a form may act on its controls: it is visible, and no other modal dialog is open. Every handler is
// connected through connectControl(), which asks, because input can be delivered late, when the form has
// opened a dialog or is hidden: an access key, the second half of a double click, a press over the
// accessibility bus.
bool mayAct(const QWidget& form);

// Connects a control's signal to the form's handler, which is called only while the form may act.
template <class Sender, class Signal, class Form, class Handler>
void connectControl(Sender* sender, Signal signal, Form* form, Handler handler,
                    Qt::ConnectionType type = Qt::AutoConnection) {
    const auto act = [form, handler](auto&&...) {
        if (mayAct(*form)) std::invoke(handler, form);
    };
    QObject::connect(sender, signal, form, act, type);
}

// A button that Enter presses on every desktop. Qt 6.8 still: the access key of a QAbstractButton clicks only
// after a tenth of a second, in which the next key still reaches the old window (Alt+B, then Enter on a
// palace). Here it clicks at once.
class CommandButton : public QPushButton {
  public:
    explicit CommandButton(const char* caption, QWidget* parent = nullptr);

  protected:
    bool event(QEvent* event) override;
};

// A control that draws itself and is pressed like a button, by Enter too.
class PressArea : public QAbstractButton {
    Q_OBJECT
  public:
    using QAbstractButton::QAbstractButton;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

// A named button with its caption and the form's handler.
template <class Form, class Handler>
QPushButton* newButton(const char* name, const char* caption, Form* form, Handler handler,
                       QWidget* parent = nullptr) {
    QPushButton* button = named(new CommandButton{caption, parent}, name);
    connectControl(button, &QPushButton::clicked, form, handler);
    return button;
}

// Adds a named entry with its caption and the form's handler to a menu. The connection is queued, so that a
// press over the accessibility bus is answered before a dialog opens.
template <class Form, class Handler>
QAction* addEntry(QMenu* menu, const char* name, const char* caption, Form* form, Handler handler,
                  const QKeySequence& shortcut = {}) {
    QAction* entry = named(menu->addAction(latin(caption), shortcut), name);
    connectControl(entry, &QAction::triggered, form, handler, Qt::QueuedConnection);
    return entry;
}

// A menu bar inside the window, without a context menu.
QMenuBar* newMenuBar(QWidget* window);

// Adds a named menu with its caption.
QMenu* addMenu(QMenuBar* menus, const char* name, const char* caption);
