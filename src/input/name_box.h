// The box for the person's name. All text that is entered in any way passes the name filter.
#pragma once

#include <QClipboard>
#include <QLineEdit>

class NameBox : public QLineEdit {
    Q_OBJECT
  public:
    NameBox();

    // Sets a name, such as one from a chart file, without the filter. It can't be undone.
    void setName(const QString& name);

  signals:
    // The filter has removed something that is neither a letter from A to Z nor a blank.
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
    bool edited_ = false;             // by a person, so that the filter has been applied
    bool replacesSelection_ = false;  // the current composition of an input method
};
