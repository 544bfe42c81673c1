// The pages behind the Help menu and the banners.
#pragma once

#include <QUrl>

class QWidget;

enum class WebPage { home, onlineHelp, download };

// The page below the base address that the program was built with or, without one, among the help pages
// installed with it.
QUrl addressOf(WebPage page);

// Opens the page in the default browser; where there is none that will open it, the form that asked says
// where the page is.
void openPage(WebPage page, QWidget* asker);
