// The Help menu that the windows share. It opens its pages and the about box itself.
#pragma once

#include <QMenu>

class HelpMenu : public QMenu {
    Q_OBJECT
  public:
    // For the menu bar of a form.
    explicit HelpMenu(QWidget* form);
};
