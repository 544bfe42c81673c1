#include "style/message.h"

#include <QAbstractButton>
#include <QKeyEvent>

#include "style/look.h"

namespace {

bool types(const QKeyEvent& event) {
    return !event.text().isEmpty() && event.text().front().isPrint() &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

// A message whose button passes over what is typed.
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
    Message box{icon, title.isEmpty() ? look::productName() : title, QString{}, QMessageBox::Ok, parent};
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setAccessibleDescription(text);  // which is what a screen reader announces of a message
    box.setWindowModality(Qt::ApplicationModal);
    box.setEscapeButton(QMessageBox::Ok);
    box.button(QMessageBox::Ok)->installEventFilter(&box);
    box.exec();
}

bool askWhether(QWidget* parent, const QString& question) {
    QMessageBox box{QMessageBox::Question, look::productName(), QString{}, QMessageBox::Yes | QMessageBox::No,
                    parent};
    box.setTextFormat(Qt::PlainText);
    box.setText(question);
    box.setAccessibleDescription(question);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}
