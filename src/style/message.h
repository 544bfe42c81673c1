// The messages of the system: modal, plain text.
#pragma once

#include <QMessageBox>
#include <QString>

// Shows the text as it stands, never as markup, with one OK button, and returns when it is closed: by Enter,
// Escape or a click, not by Space or a letter, so that who types on does not answer it unseen. The title is
// the product's name unless another is given.
void showMessage(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& title = {});

// Asks a question that Yes or No answers, and returns whether the answer was Yes. No is the default.
bool askWhether(QWidget* parent, const QString& question);
