// The name box: whatever a person puts into it passes the name filter on its way in.
#pragma once

#include <QLineEdit>

class QMimeData;

class NameBox : public QLineEdit {
    Q_OBJECT
  public:
    explicit NameBox(QWidget* parent = nullptr);

  signals:
    // Something that is neither a letter nor a blank was kept out.
    void rejected();

  protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void typeFiltered(QKeyEvent* event);
    void insertFiltered(const QMimeData* source);
    QString filtered(const QString& text, bool& rejectedAny) const;
};
