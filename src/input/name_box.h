// The box for the person's name. Whatever comes in, on whichever way, passes the name filter; what is there
// stays as it is.
#pragma once

#include <QClipboard>
#include <QLineEdit>

class NameBox : public QLineEdit {
    Q_OBJECT
  public:
    NameBox();

    // Puts a name into the box as it stands, as one from a chart file. It can't be undone.
    void setName(const QString& name);

  signals:
    // Something that is neither a letter nor a blank was kept out.
    void rejected();

  protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    QString filtered(QStringView text);
    void enter(const QString& text);
    void paste(QClipboard::Mode mode);
    void filterSetText(const QString& text);

    QString lastText_;
    bool edited_ = false;             // by hand, so that it has passed the filter
    bool replacesSelection_ = false;  // the composition of an input method that is going on
};
