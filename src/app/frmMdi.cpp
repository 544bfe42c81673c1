#include "app/frmMdi.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "app/strip_places.h"
#include "style/link_label.h"
#include "style/look.h"

namespace {

constexpr int buttonWidth = 1215;  // twips
constexpr int buttonHeight = 390;  // twips
constexpr int stripMargin = 75;    // twips

int pixels(int twips) { return qRound(twips / look::twipsPerPixel); }
int twips(int pixelCount) { return qRound(pixelCount * look::twipsPerPixel); }

}  // namespace

frmMdi::frmMdi() {
    setObjectName(QStringLiteral("frmMdi"));
    setWindowTitle(look::productName());
    createStrip();
    area_ = new QMdiArea;
    area_->setBackground(palette().color(QPalette::Window).darker(112));
    area_->setFocusPolicy(Qt::NoFocus);
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout{content};
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    setCentralWidget(content);
    rows->addWidget(stripView_);
    rows->addWidget(area_);
    MDIForm_Load();
}

void frmMdi::MDIForm_Load() {
    // About as large as it will be when it is maximised, with the border of the window that is there now, so
    // that the chart need not be laid out twice.
    const QWidget* shown = QApplication::activeWindow();
    const QSize border = shown == nullptr ? QSize{} : shown->frameSize() - shown->size();
    resize(screen()->availableSize() - border);
    placeStrip();
}

void frmMdi::createStrip() {
    Picture2 = new QWidget;
    Picture2->setObjectName(QStringLiteral("Picture2"));
    // The strip is as wide as the screen; in a frame that was made smaller, it scrolls.
    stripView_ = new QScrollArea;
    stripView_->setFrameShape(QFrame::NoFrame);
    stripView_->setFocusPolicy(Qt::NoFocus);
    stripView_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    stripView_->setWidget(Picture2);
    lblBanner = new LinkLabel{look::productName(), Picture2};
    lblBanner->setObjectName(QStringLiteral("lblBanner"));
    QFont title = lblBanner->font();
    title.setPixelSize(17);
    title.setBold(true);
    lblBanner->setFont(title);
    lblBanner->setAccessibleDescription(tr("Opens the home page"));
    lblBanner->adjustSize();
    connect(lblBanner, &LinkLabel::clicked, this, &frmMdi::homePageRequested);
    cmdSavePicture = createButton("cmdSavePicture", "Save as &JPG", &frmMdi::savePictureRequested);
    cmdShowAll = createButton("cmdShowAll", "&Show All", &frmMdi::showAllRequested);
    cmdBack = createButton("cmdBack", "&Back", &frmMdi::backRequested);
    cmdMdiExit = createButton("cmdMdiExit", "&Exit", &frmMdi::exitRequested);
}

// The buttons' width is fixed by their places, so their text does not grow with the desktop's.
QPushButton* frmMdi::createButton(const char* name, const char* caption, void (frmMdi::*wanted)()) {
    auto* button = new QPushButton{QString::fromLatin1(caption), Picture2};
    button->setObjectName(QString::fromLatin1(name));
    QFont font = button->font();
    font.setPixelSize(11);
    button->setFont(font);
    connect(button, &QPushButton::clicked, this, wanted);
    return button;
}

int frmMdi::screenTwips() const { return twips(screen()->size().width()); }

// Places count from the screen, not from the frame. On a screen so narrow that the banner would meet the
// buttons, the buttons move down to a row of their own.
void frmMdi::placeStrip() {
    const StripPlaces places = stripPlaces(screenTwips(), buttonWidth);
    const int margin = pixels(stripMargin);
    const int bannerLeft = pixels(centredLeft(screenTwips(), twips(lblBanner->width())));
    const bool narrow = bannerLeft + lblBanner->width() + margin > pixels(places.cmdSavePicture);
    const int rowHeight = std::max(pixels(buttonHeight), lblBanner->height());
    const int buttonTop =
        margin + (rowHeight - pixels(buttonHeight)) / 2 + (narrow ? lblBanner->height() : 0);
    lblBanner->move(bannerLeft, margin + (narrow ? 0 : (rowHeight - lblBanner->height()) / 2));
    const auto place = [buttonTop](QPushButton* button, int left) {
        button->setGeometry(pixels(left), buttonTop, pixels(buttonWidth), pixels(buttonHeight));
    };
    place(cmdSavePicture, places.cmdSavePicture);
    place(cmdShowAll, places.cmdShowAll);
    place(cmdBack, places.cmdBack);
    place(cmdMdiExit, places.cmdMdiExit);
    Picture2->resize(screen()->size().width(), 2 * margin + rowHeight + (narrow ? lblBanner->height() : 0));
    const bool scrolls = width() < Picture2->width();
    const int bar = scrolls ? stripView_->horizontalScrollBar()->sizeHint().height() : 0;
    stripView_->setFixedHeight(Picture2->height() + bar);
}

void frmMdi::hostChart(QWidget* chart, std::function<QSize(QSize)> fit) {
    fit_ = std::move(fit);
    chartWindow_ = area_->addSubWindow(chart, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                                  Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    chartWindow_->setAttribute(Qt::WA_DeleteOnClose, false);
    chartWindow_->setPalette(look::legibleTitle(palette()));
    chartWindow_->setWindowIcon(windowIcon());
    chartWindow_->installEventFilter(this);
    area_->viewport()->installEventFilter(this);
    chartWindow_->show();
    // The chart window takes the focus when it is shown; it belongs to the strip until a person moves it.
    QMetaObject::invokeMethod(cmdShowAll, qOverload<>(&QWidget::setFocus), Qt::QueuedConnection);
}

void frmMdi::focusStrip(bool first) {
    if (first) {
        lblBanner->setFocus(Qt::TabFocusReason);
    } else {
        cmdMdiExit->setFocus(Qt::BacktabFocusReason);
    }
}

void frmMdi::placeChart() {
    if (chartWindow_ == nullptr) return;
    const QSize room = area_->viewport()->size();
    const QMargins border = chartWindow_->contentsMargins();
    const QSize decoration{border.left() + border.right(), border.top() + border.bottom()};
    const QSize size = fit_(room - decoration) + decoration;
    const int width = std::min(screen()->size().width(), room.width());
    const int left = pixels(centredLeft(twips(width), twips(size.width())));
    chartWindow_->setFixedSize(size);
    chartWindow_->move(left, std::max(0, (room.height() - size.height()) / 2));
}

void frmMdi::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    placeStrip();
    // At once, or what the strip gives to the chart or takes from it is painted twice.
    centralWidget()->layout()->activate();
}

// Closing the chart window by its title bar is Exit, as closing the frame is.
bool frmMdi::eventFilter(QObject* watched, QEvent* event) {
    if (watched == chartWindow_ && event->type() == QEvent::Close) {
        event->ignore();
        emit exitRequested();
        return true;
    }
    // At once, before the frame is painted at its new size, or all would be painted twice.
    if (watched == area_->viewport() && event->type() == QEvent::Resize) placeChart();
    return QMainWindow::eventFilter(watched, event);
}

// The chart window's menus hear their access keys only while the focus is in that window.
void frmMdi::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers() == Qt::AltModifier) emit menuKeyPressed(event->key());
    QMainWindow::keyPressEvent(event);
}

void frmMdi::closeEvent(QCloseEvent* event) {
    event->accept();
    emit exitRequested();
}
