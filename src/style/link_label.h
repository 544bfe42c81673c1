// A label that opens a page: by a click, or by Enter or Space while it has the focus.
#pragma once

#include <QLabel>

class LinkLabel : public QLabel {
    Q_OBJECT
  public:
    explicit LinkLabel(const QString& text, QWidget* parent = nullptr);

  signals:
    void clicked();

  protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void takeLinkColour();
};

// Lets a screen reader know such labels as links that can be pressed.
void installLinkAccessibility();
