// The modal messages of all forms. Their text is plain, never markup.
#pragma once

#include <QMessageBox>
#include <QString>

// Shows a message and returns when it is closed: by Enter, Escape or a click, but not by Space, so that a
// person who is still typing does not close it unread. Without a title, it has the default one.
void showMessage(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& title = {});

// Asks a question with the buttons Yes and No, the default, and returns whether the answer was Yes.
bool askWhether(QWidget* parent, const QString& question);
