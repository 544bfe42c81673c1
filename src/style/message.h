// The messages of the system: modal, plain text, one OK button.
#pragma once

#include <QMessageBox>
#include <QString>

// Shows the text as it stands, never as markup, and returns when it is closed (OK, Enter or Escape). The
// title is the product's name unless another is given.
void showMessage(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QString& title = {});
