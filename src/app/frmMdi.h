// The frame that hosts the chart window, with a strip of four buttons along its top.
#pragma once

#include <QMainWindow>

class BannerLink;
class QMdiArea;
class QMdiSubWindow;
class QPushButton;
class frmDisplay;

class frmMdi : public QMainWindow {
    Q_OBJECT
  public:
    // Takes ownership of the chart window and shows the person's name in the title.
    frmMdi(frmDisplay* chart, const QString& person);

    // Shows the frame maximised on the screen of the form that it replaces.
    void showInPlaceOf(const QWidget& form);

  signals:  // from the strip or from the chart window's menu
    void savePictureRequested();
    void showAllRequested();
    void backRequested();
    void closed();  // the frame itself

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void MDIForm_Load();
    void cmdMdiExit_Click();
    void hostChart();
    void followPalette();
    void placeStrip();
    void placeChart();
    QRect placementRect() const;
    int centredLeft(int width) const;

    frmDisplay* chart_;
    QWidget* Picture2;
    BannerLink* lblBanner;
    QPushButton* cmdSavePicture;
    QPushButton* cmdShowAll;
    QPushButton* cmdBack;
    QPushButton* cmdMdiExit;
    QMdiArea* area_;
    QMdiSubWindow* chartWindow_;
    bool wasRestored_ = false;  // whether the frame has been, since it was shown maximised
};
