#include "style/message.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QKeyEvent>

#include "style/look.h"

namespace {

bool entersText(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().front().isPrint() &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

QString defaultTitle() { return look::productName() + QStringLiteral(" Message"); }

// A message box with plain text. As the event filter of its button, it discards printable characters: Space
// from a person who types on after the message has opened would press the button.
class Message : public QMessageBox {
  public:
    Message(QWidget* parent, Icon icon, const QString& title, const QString& text, StandardButtons buttons)
        : QMessageBox(icon, title, QString{}, buttons, parent) {
        setTextFormat(Qt::PlainText);
        setText(text);
        setAccessibleDescription(text);  // which a screen reader announces
        // QMessageBox does not leave enough room for its title in frames with an icon and three buttons.
        const int titleWidth = fontMetrics().horizontalAdvance(title) + 160;
        if (auto* grid = qobject_cast<QGridLayout*>(layout()))
            grid->addItem(new QSpacerItem{qMin(titleWidth, 400), 0}, grid->rowCount(), 0, 1, -1);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool typed = event->type() == QEvent::KeyPress && entersText(*static_cast<QKeyEvent*>(event));
        return typed || QMessageBox::eventFilter(watched, event);
    }
};

}  // namespace

void showMessage(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& title) {
    Message box{parent, icon, title.isEmpty() ? defaultTitle() : title, text, QMessageBox::Ok};
    box.button(QMessageBox::Ok)->installEventFilter(&box);
    box.exec();
}

bool askWhether(QWidget* parent, const QString& question) {
    Message box{parent, QMessageBox::Question, defaultTitle(), question, QMessageBox::Yes | QMessageBox::No};
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}
