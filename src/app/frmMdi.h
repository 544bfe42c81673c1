// The frame that hosts the chart window, with a strip of four buttons along its top.
#pragma once

#include <QMainWindow>
#include <functional>

class BannerLink;
class QMdiArea;
class QMdiSubWindow;
class QPushButton;

class frmMdi : public QMainWindow {
    Q_OBJECT
  public:
    // Takes ownership of the chart window. The person's name is for the title. `fit` is called with the room
    // that there is, in pixels, and returns the size that the chart window takes.
    frmMdi(QWidget* chart, const QString& person, std::function<QSize(QSize)> fit);

    // Shows the frame maximised on the screen of the form that it takes the place of.
    void showInPlaceOf(const QWidget& form);

    // Moves the focus to the strip's first control, or to its last.
    void focusStrip(bool first);

  public slots:
    void cmdMdiExit_Click();

  signals:
    void savePictureRequested();
    void showAllRequested();
    void backRequested();
    void closed();
    void menuKeyPressed(int key);  // with Alt, and no access key of the frame's own

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void MDIForm_Load();
    void createStrip();
    void hostChart(QWidget* chart);
    void followPalette();
    void placeStrip();
    void placeChart();
    bool fillsScreen() const;
    int leftOnScreen() const;
    int rightEdge() const;
    int centredLeft(int width) const;

    QWidget* Picture2;
    BannerLink* lblBanner;
    QPushButton* cmdSavePicture;
    QPushButton* cmdShowAll;
    QPushButton* cmdBack;
    QPushButton* cmdMdiExit;
    QMdiArea* area_;
    QMdiSubWindow* chartWindow_ = nullptr;
    std::function<QSize(QSize)> fit_;
    bool wasRestored_ = false;  // from its maximised state
};
