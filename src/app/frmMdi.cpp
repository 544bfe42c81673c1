#include "app/frmMdi.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "help/banner_link.h"
#include "style/controls.h"
#include "style/look.h"

namespace {

constexpr int pixels(int twips) { return qRound(twips / look::twipsPerPixel); }

constexpr int buttonWidth = 1215;  // twips
constexpr QSize buttonSize{pixels(buttonWidth), pixels(390)};
constexpr int stripMargin = pixels(75);

// Room for the strip in two rows, and for as much of a chart as can be read while it scrolls.
constexpr QSize leastSize{400, 360};

}  // namespace

frmMdi::frmMdi(QWidget* chart, std::function<QSize(QSize)> fit) : fit_(std::move(fit)) {
    named(this, "frmMdi");
    setWindowTitle(look::productName());
    createStrip();
    area_ = new QMdiArea;
    area_->setBackground(palette().color(QPalette::Window).darker(112));
    area_->setFocusPolicy(Qt::NoFocus);
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout{content};
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(Picture2);
    rows->addWidget(area_);
    setCentralWidget(content);
    hostChart(chart);
    MDIForm_Load();
}

void frmMdi::MDIForm_Load() { placeStrip(); }

void frmMdi::createStrip() {
    Picture2 = named(new QWidget, "Picture2");
    QFont font = look::titleFont();
    font.setPixelSize(17);
    lblBanner = new BannerLink{font, this, Picture2};
    lblBanner->adjustSize();
    cmdSavePicture =
        newButton("cmdSavePicture", "Save as &JPG", this, &frmMdi::savePictureRequested, Picture2);
    cmdShowAll = newButton("cmdShowAll", "&Show All", this, &frmMdi::showAllRequested, Picture2);
    cmdBack = newButton("cmdBack", "&Back", this, &frmMdi::backRequested, Picture2);
    cmdMdiExit = newButton("cmdMdiExit", "&Exit", this, &frmMdi::cmdMdiExit_Click, Picture2);
    // Their width is fixed by their places, so their text does not grow with the desktop's.
    for (QPushButton* button : {cmdSavePicture, cmdShowAll, cmdBack, cmdMdiExit}) {
        QFont small = button->font();
        small.setPixelSize(11);
        button->setFont(small);
    }
}

void frmMdi::hostChart(QWidget* chart) {
    chartWindow_ = area_->addSubWindow(chart, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                                  Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    chartWindow_->setAttribute(Qt::WA_DeleteOnClose, false);
    chartWindow_->setSystemMenu(nullptr);  // whose keys would end the program
    chartWindow_->setFocusPolicy(Qt::NoFocus);
    chartWindow_->setWindowIcon(windowIcon());
    chartWindow_->installEventFilter(this);
    area_->viewport()->installEventFilter(this);
    // The keys of the chart window's menus are heard only while the focus is in that window; here,
    // everywhere.
    for (QAction* entry : chart->findChildren<QAction*>()) {
        if (!entry->shortcut().isEmpty()) addAction(entry);
    }
    // The chart window takes the focus when it is shown; it belongs to the strip until a person moves it.
    QMetaObject::invokeMethod(cmdShowAll, qOverload<>(&QWidget::setFocus), Qt::QueuedConnection);
}

// As large to begin with as it will be with the border that the form has, so that the chart is painted once;
// and it fills the screen where no window manager maximises.
void frmMdi::showInPlaceOf(const QWidget& form) {
    const QRect room = form.screen()->availableGeometry();
    setMinimumSize(leastSize.boundedTo(room.size() - QSize{16, 40}));
    setScreen(form.screen());
    setGeometry({room.topLeft(), room.size() - (form.frameSize() - form.size())});
    showMaximized();
}

// Made smaller for the first time, the frame takes a size that differs from the maximised one. While it is
// being shown, some window managers take the state away and give it again.
void frmMdi::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || isMaximized() || isMinimized() || !isActiveWindow())
        return;
    if (!std::exchange(fillsScreen_, false)) return;
    const QRect room = screen()->availableGeometry();
    QRect smaller{QPoint{}, room.size() * 3 / 4};
    smaller.moveCenter(room.center());
    setGeometry(smaller);
}

void frmMdi::cmdMdiExit_Click() { close(); }

void frmMdi::focusStrip(bool first) {
    first ? lblBanner->setFocus(Qt::TabFocusReason) : cmdMdiExit->setFocus(Qt::BacktabFocusReason);
}

// How far the frame's inside is from the screen's left edge; where nobody knows, as if it lay in the middle.
int frmMdi::leftOnScreen() const {
    const QRect place = screen()->geometry();
    return placesAreKnown() ? geometry().x() - place.x() : (place.width() - width()) / 2;
}

// The edge from which the buttons' places count, in the frame: the screen's where the frame reaches it, else
// the frame's own.
int frmMdi::rightEdge() const {
    const bool reaches = placesAreKnown() && frameGeometry().right() >= screen()->geometry().right();
    return reaches ? screen()->geometry().width() - leftOnScreen() : width();
}

// The left edge, in the frame, of something of that width that is centred on the screen, but wholly inside
// the frame.
int frmMdi::centredOnScreen(int width) const {
    const int left = (screen()->geometry().width() - width) / 2 - leftOnScreen();
    return std::max(0, std::min(left, this->width() - width));
}

// The buttons' distances from the edge are in twips; the middle gap is wider than the others, on purpose.
// Where the banner would meet the buttons, these move down to a row of their own.
void frmMdi::placeStrip() {
    const auto leftAt = [edge = rightEdge()](int distance) { return edge - pixels(buttonWidth + distance); };
    const int bannerLeft = centredOnScreen(lblBanner->width());
    const bool narrow = bannerLeft + lblBanner->width() + stripMargin > leftAt(4280);
    const int rowHeight = std::max(buttonSize.height(), lblBanner->height());
    const int secondRow = narrow ? lblBanner->height() : 0;
    const int top = stripMargin + (rowHeight - buttonSize.height()) / 2 + secondRow;
    lblBanner->move(bannerLeft, stripMargin + (narrow ? 0 : (rowHeight - lblBanner->height()) / 2));
    cmdSavePicture->setGeometry({{leftAt(4280), top}, buttonSize});
    cmdShowAll->setGeometry({{leftAt(2900), top}, buttonSize});
    cmdBack->setGeometry({{leftAt(1500), top}, buttonSize});
    cmdMdiExit->setGeometry({{leftAt(120), top}, buttonSize});
    Picture2->setFixedHeight(2 * stripMargin + rowHeight + secondRow);
}

void frmMdi::placeChart() {
    const QSize room = area_->viewport()->size();
    const QMargins border = chartWindow_->contentsMargins();
    const QSize decoration{border.left() + border.right(), border.top() + border.bottom()};
    const QSize size = fit_(room - decoration) + decoration;
    chartWindow_->setFixedSize(size);
    chartWindow_->move(centredOnScreen(size.width()), std::max(0, (room.height() - size.height()) / 2));
}

// The chart is placed when its area first gets a size, and not before.
void frmMdi::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    if (!isVisible()) return;
    placeStrip();
    placeChart();
}

void frmMdi::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    placeStrip();
    // At once, or what the strip gives to the chart or takes from it is painted twice.
    centralWidget()->layout()->activate();
}

// Closing the chart window by its title bar is Exit, as closing the frame is; a double click on its icon is
// not.
bool frmMdi::eventFilter(QObject* watched, QEvent* event) {
    if (watched == chartWindow_ && event->type() == QEvent::MouseButtonDblClick) return true;
    if (watched == chartWindow_ && event->type() == QEvent::Close) {
        event->ignore();
        cmdMdiExit_Click();
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
    emit closed();
}
