// The addresses behind the Help menu and the banners.
#pragma once

#include <QUrl>

#include "style/help_menu.h"

// Below the base address that the program was built with or, without one, the help pages installed with it.
QUrl addressOf(WebPage page);

// Opens the page in the default browser; says where it is if there is none that will open it.
void openPage(WebPage page, QWidget* parent);
