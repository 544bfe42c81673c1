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
    // Takes the chart window in. `fit` is told how much room there is and returns the size that the window
    // takes.
    frmMdi(QWidget* chart, std::function<QSize(QSize)> fit);

    // Shows the frame maximised on the form's screen.
    void showInPlaceOf(const QWidget& form);

    // Puts the focus on the strip's first control, or on its last.
    void focusStrip(bool first);

  public slots:
    void cmdMdiExit_Click();

  signals:
    void savePictureRequested();
    void showAllRequested();
    void backRequested();
    void closed();
    void menuKeyPressed(int key);  // a letter with Alt that no control of the frame answers to

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
    void placeStrip();
    void placeChart();
    int leftOnScreen() const;
    int rightEdge() const;
    int centredOnScreen(int width) const;

    QWidget* Picture2;
    BannerLink* lblBanner;
    QPushButton* cmdSavePicture;
    QPushButton* cmdShowAll;
    QPushButton* cmdBack;
    QPushButton* cmdMdiExit;
    QMdiArea* area_;
    QMdiSubWindow* chartWindow_ = nullptr;
    std::function<QSize(QSize)> fit_;
    bool fillsScreen_ = true;  // whatever its state, until it is first made smaller
};
