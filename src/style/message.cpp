#include "style/message.h"

#include "style/look.h"

void showMessage(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& title) {
    QMessageBox box{icon, title.isEmpty() ? look::productName() : title, QString{}, QMessageBox::Ok, parent};
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setAccessibleDescription(text);  // which is what a screen reader announces of a message
    box.setWindowModality(Qt::ApplicationModal);
    box.setEscapeButton(QMessageBox::Ok);
    box.exec();
}
