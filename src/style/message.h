// The messages of the system: modal, plain text.
#pragma once

#include <QMessageBox>
#include <QString>

// Shows the text, never as markup, with one OK button, and returns when it is closed: by Enter, Escape or a
// click, not by Space or a letter, so that who types on does not close it unread. Without a title it has that
// of all messages.
void showMessage(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& title = {});

// Asks a question and returns whether the answer was Yes. No is the default.
bool askWhether(QWidget* parent, const QString& question);
