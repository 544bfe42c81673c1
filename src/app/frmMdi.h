// The frame that hosts the chart window, with a strip of four buttons along its top.
#pragma once

#include <QMainWindow>
#include <functional>

class LinkLabel;
class QMdiArea;
class QMdiSubWindow;
class QPushButton;
class QScrollArea;

class frmMdi : public QMainWindow {
    Q_OBJECT
  public:
    frmMdi();

    // Takes the chart window in. `fit` is told how much room there is and returns the size that the window
    // takes.
    void hostChart(QWidget* chart, std::function<QSize(QSize)> fit);

    // Puts the focus on the strip's first control, or on its last.
    void focusStrip(bool first);

  signals:
    void savePictureRequested();
    void showAllRequested();
    void backRequested();
    void exitRequested();
    void homePageRequested();
    void menuKeyPressed(int key);  // a letter with Alt that no control of the frame answers to

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void MDIForm_Load();
    void createStrip();
    QPushButton* createButton(const char* name, const char* caption, void (frmMdi::*wanted)());
    void placeStrip();
    void placeChart();
    int screenTwips() const;

    QScrollArea* stripView_;
    QWidget* Picture2;
    LinkLabel* lblBanner;
    QPushButton* cmdSavePicture;
    QPushButton* cmdShowAll;
    QPushButton* cmdBack;
    QPushButton* cmdMdiExit;
    QMdiArea* area_;
    QMdiSubWindow* chartWindow_ = nullptr;
    std::function<QSize(QSize)> fit_;
};
