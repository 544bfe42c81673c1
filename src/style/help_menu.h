// The Help menu that the windows share, and the pages that it opens.
#pragma once

#include <QMenu>

enum class WebPage { home, onlineHelp, download };

class HelpMenu : public QMenu {
    Q_OBJECT
  public:
    explicit HelpMenu(QWidget* parent);

  signals:
    void pageRequested(WebPage page);
    void aboutRequested();

  private:
    QAction* addEntry(const char* name, const char* caption);
};
