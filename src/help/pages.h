// The pages that the Help menu and the banners open.
#pragma once

#include <QUrl>

class QWidget;

enum class WebPage { home, onlineHelp, download };

// The page's address below PALACE_LANTERN_WEB_BASE or, if that is empty, among the installed help pages.
QUrl addressOf(WebPage page);

// Opens the page in the default browser; if that fails, shows a message with the address over the form.
void openPage(WebPage page, QWidget* asker);
