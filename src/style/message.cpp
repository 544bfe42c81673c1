#include "style/message.h"

#include <QAbstractButton>
#include <QKeyEvent>

#include "style/look.h"

namespace {

bool types(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().front().isPrint() &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

QString defaultTitle() { return look::productName() + QStringLiteral(" Message"); }

// A message whose button ignores what is typed. mayAct() can't see to that: the button is the dialog's own,
// and the blank of a person who types on would press it.
class Message : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool typed = event->type() == QEvent::KeyPress && types(*static_cast<QKeyEvent*>(event));
        return typed || QMessageBox::eventFilter(watched, event);
    }
};

}  // namespace

void showMessage(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& title) {
    Message box{icon, title.isEmpty() ? defaultTitle() : title, QString{}, QMessageBox::Ok, parent};
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setAccessibleDescription(text);  // a screen reader announces it
    box.setWindowModality(Qt::ApplicationModal);
    box.setEscapeButton(QMessageBox::Ok);
    box.button(QMessageBox::Ok)->installEventFilter(&box);
    box.exec();
}

bool askWhether(QWidget* parent, const QString& question) {
    QMessageBox box{QMessageBox::Question, defaultTitle(), QString{}, QMessageBox::Yes | QMessageBox::No,
                    parent};
    box.setTextFormat(Qt::PlainText);
    box.setText(question);
    box.setAccessibleDescription(question);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}
