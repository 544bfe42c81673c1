// Small helpers for the controls of all forms: their names, their texts, and when they may act.
#pragma once

#include <QMenuBar>
#include <QPushButton>
#include <functional>
#include <string_view>

// The text of the core as the toolkit's; each byte is a character of Latin-1.
QString latin(std::string_view text);

// The same, with CR LF as the one line break that labels and text views know.
QString latinLines(std::string_view text);

// Gives the control its name and returns it.
template <class Control>
Control* named(Control* control, std::string_view name) {
    control->setObjectName(latin(name));
    return control;
}

// Whether a form may act on what a person does with its controls: it is shown, and no dialog stands before
// it. A press can reach a form late, when it has opened a dialog or has gone already: a shortcut's, the
// second half of a double click, one from the accessibility bus. Every control of every form asks, so one
// thing happens at a time, whatever the hands do.
bool mayAct(const QWidget& form);

// Whether the places of windows and of the pointer on the screen are known. Under Wayland no program is told.
bool placesAreKnown();

// Lets a control's signal call the form's handler, as long as the form may act.
template <class Sender, class Signal, class Form, class Handler>
void connectControl(Sender* sender, Signal signal, Form* form, Handler handler,
                    Qt::ConnectionType type = Qt::AutoConnection) {
    const auto act = [form, handler](auto&&...) {
        if (mayAct(*form)) std::invoke(handler, form);
    };
    QObject::connect(sender, signal, form, act, type);
}

// A button that acts at once when its access key is pressed (QAbstractButton of Qt 6.4 shows itself pressed
// for a tenth of a second first, and another key may come between), and by Enter on every desktop.
class CommandButton : public QPushButton {
  public:
    explicit CommandButton(const char* caption, QWidget* parent = nullptr);

  protected:
    bool event(QEvent* event) override;
};

// A named button with its caption and the form's handler.
template <class Form, class Handler>
QPushButton* newButton(const char* name, const char* caption, Form* form, Handler handler,
                       QWidget* parent = nullptr) {
    QPushButton* button = named(new CommandButton{caption, parent}, name);
    connectControl(button, &QPushButton::clicked, form, handler);
    return button;
}

// Adds a named entry with its caption and the form's handler to a menu. It acts through the event loop, so
// that who chooses it over the accessibility bus is answered before a box opens.
template <class Form, class Handler>
QAction* addEntry(QMenu* menu, const char* name, const char* caption, Form* form, Handler handler,
                  const QKeySequence& shortcut = {}) {
    QAction* entry = named(menu->addAction(latin(caption), shortcut), name);
    connectControl(entry, &QAction::triggered, form, handler, Qt::QueuedConnection);
    return entry;
}

// A menu bar inside the window, without a menu of its own behind the right button.
QMenuBar* newMenuBar(QWidget* window);
