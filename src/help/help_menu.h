// The Help menu that the windows share, and the pages that it and the banners open.
#pragma once

class QMenu;
class QWidget;

enum class WebPage { home, onlineHelp, download };

// Opens the page in the default browser; if that fails, shows a message with the address over the form.
void openPage(WebPage page, QWidget* asker);

// A new Help menu for the menu bar of a form. It opens the pages and the about box itself.
QMenu* newHelpMenu(QWidget* form);
