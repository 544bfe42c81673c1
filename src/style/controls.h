// What the controls of all forms share: their names, when they act, and how the keyboard presses them.
#pragma once

#include <QMenuBar>
#include <QPushButton>
#include <functional>
#include <string_view>

#include "style/text.h"

// Sets the object name and returns the control.
template <class Control>
Control* named(Control* control, std::string_view name) {
    control->setObjectName(latin(name));
    return control;
}

// Whether the key is Enter, be it of the number pad.
constexpr bool isEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

// Whether the form is visible and no other modal dialog is open. connectControl() checks it for every
// handler, because input can arrive when the form is already hidden or has opened a dialog: an access key,
// the second click of a double click, a press over the accessibility bus.
bool mayAct(const QWidget& form);

// Connects a control's signal to a handler of the form, which is called only if mayAct().
template <class Sender, class Signal, class Form, class Handler>
void connectControl(Sender* sender, Signal signal, Form* form, Handler handler,
                    Qt::ConnectionType type = Qt::AutoConnection) {
    const auto act = [form, handler](auto&&...) {
        if (mayAct(*form)) std::invoke(handler, form);
    };
    QObject::connect(sender, signal, form, act, type);
}

// Qt 6.8 still: the access key of a QAbstractButton clicks only after 100 ms, and a key pressed in that time
// still goes to the old window (Alt+B, then Enter on a palace). Here it clicks immediately.
class CommandButton : public QPushButton {
  public:
    using QPushButton::QPushButton;

  protected:
    bool event(QEvent* event) override;
};

// A button that paints itself in a subclass. Enter presses it, too.
class PressArea : public QAbstractButton {
    Q_OBJECT
  public:
    using QAbstractButton::QAbstractButton;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

// A new button, which Enter presses on every desktop, and whose clicks call the form's handler.
template <class Form, class Handler>
QPushButton* newButton(const char* name, const char* caption, Form* form, Handler handler,
                       QWidget* parent = nullptr) {
    QPushButton* button = named(new CommandButton{latin(caption), parent}, name);
    button->setAutoDefault(true);
    connectControl(button, &QPushButton::clicked, form, handler);
    return button;
}

// Adds an entry that calls the form's handler; queued, so that a call over the accessibility
// bus returns before the dialog that it opens is closed.
template <class Form, class Handler>
QAction* addEntry(QMenu* menu, const char* name, const char* caption, Form* form, Handler handler,
                  const QKeySequence& shortcut = {}) {
    QAction* entry = named(menu->addAction(latin(caption), shortcut), name);
    connectControl(entry, &QAction::triggered, form, handler, Qt::QueuedConnection);
    return entry;
}

// A menu bar inside the window, without a context menu.
QMenuBar* newMenuBar(QWidget* window);
