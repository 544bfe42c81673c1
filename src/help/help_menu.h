// The Help menu that the windows share.
#pragma once

class QMenu;
class QWidget;

// A new Help menu for the menu bar of a form. It opens the pages and the about box itself.
QMenu* newHelpMenu(QWidget* form);
