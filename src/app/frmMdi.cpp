#include "app/frmMdi.h"

#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "display/frmDisplay.h"
#include "help/banner_link.h"
#include "style/controls.h"
#include "style/look.h"
#include "style/platform.h"

namespace {

constexpr int pixels(int twips) { return qRound(look::pixels(twips)); }

constexpr int buttonWidth = 1215;  // twips
constexpr QSize buttonSize{pixels(buttonWidth), pixels(390)};
constexpr int stripMargin = pixels(75);

// Enough for the strip in two rows above a chart that scrolls.
constexpr QSize leastSize{400, 360};

constexpr int longestTitle = 100;  // characters of the name

}  // namespace

frmMdi::frmMdi(frmDisplay* chart, const QString& person) : chart_(chart) {
    named(this, "frmMdi");
    setWindowTitle(look::productName() + QStringLiteral(" - ") + person.left(longestTitle));
    MDIForm_Load();
    area_ = new QMdiArea;
    area_->setFocusPolicy(Qt::NoFocus);
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout{content};
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(Picture2);
    rows->addWidget(area_);
    setCentralWidget(content);
    hostChart();
    followPalette();
}

void frmMdi::followPalette() { area_->setBackground(palette().color(QPalette::Window).darker(112)); }

void frmMdi::MDIForm_Load() {
    Picture2 = named(new QWidget, "Picture2");
    QFont font = look::titleFont();
    font.setPixelSize(17);
    lblBanner = new BannerLink{font, this, Picture2};
    lblBanner->adjustSize();
    // The buttons' width is fixed in twips, so the font size does not follow the desktop's.
    QFont small = Picture2->font();
    small.setPixelSize(11);
    Picture2->setFont(small);
    cmdSavePicture =
        newButton("cmdSavePicture", "Save as &JPG", this, &frmMdi::savePictureRequested, Picture2);
    cmdShowAll = newButton("cmdShowAll", "&Show All", this, &frmMdi::showAllRequested, Picture2);
    cmdBack = newButton("cmdBack", "&Back", this, &frmMdi::backRequested, Picture2);
    cmdMdiExit = newButton("cmdMdiExit", "&Exit", this, &frmMdi::cmdMdiExit_Click, Picture2);
    placeStrip();
}

void frmMdi::hostChart() {
    chartWindow_ = area_->addSubWindow(chart_, Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    chartWindow_->setAttribute(Qt::WA_DeleteOnClose, false);
    chartWindow_->setSystemMenu(nullptr);  // its Ctrl+W and Ctrl+F4 would end the program
    chartWindow_->setFocusPolicy(Qt::NoFocus);
    chartWindow_->setWindowIcon(windowIcon());
    chartWindow_->installEventFilter(this);
    area_->viewport()->installEventFilter(this);
    // As actions of the frame, shortcuts of the chart window work wherever the focus is.
    for (QAction* entry : chart_->findChildren<QAction*>()) {
        if (!entry->shortcut().isEmpty()) addAction(entry);
    }
    connect(chart_, &frmDisplay::showAllRequested, this, &frmMdi::showAllRequested);
    connect(chart_, &frmDisplay::savePictureRequested, this, &frmMdi::savePictureRequested);
    connect(chart_, &frmDisplay::backRequested, this, &frmMdi::backRequested);
    connect(chart_, &frmDisplay::exitRequested, this, &frmMdi::cmdMdiExit_Click);
    // Queued, because the chart window takes the focus when it is shown.
    QMetaObject::invokeMethod(cmdShowAll, qOverload<>(&QWidget::setFocus), Qt::QueuedConnection);
}

// The geometry is set to that of a maximised frame first, so that the chart is laid out and painted only
// once. Without a window manager, the frame keeps it.
void frmMdi::showInPlaceOf(const QWidget& form) {
    const QRect room = form.screen()->availableGeometry();
    setMinimumSize(leastSize.boundedTo(room.size() - QSize{16, 40}));
    setScreen(form.screen());
    setGeometry({room.topLeft(), room.size() - (form.frameSize() - form.size())});
    showMaximized();
}

void frmMdi::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) followPalette();
    // Queued, because the menu bar gets the new font after the frame.
    if (event->type() == QEvent::FontChange && isVisible())
        QMetaObject::invokeMethod(this, &frmMdi::placeChart, Qt::QueuedConnection);
    // The first restore would bring back the geometry that showInPlaceOf() has set, which fills the screen.
    // An inactive frame is left alone: some window managers restore a frame for a moment while they show it.
    if (event->type() != QEvent::WindowStateChange || isMaximized() || isMinimized() || !isActiveWindow())
        return;
    if (std::exchange(wasRestored_, true)) return;
    const QRect room = screen()->availableGeometry();
    QRect smaller{QPoint{}, room.size() * 3 / 4};
    smaller.moveCenter(room.center());
    setGeometry(smaller);
}

void frmMdi::cmdMdiExit_Click() { close(); }

// Strip and chart are placed between its left and right edges, in the frame's coordinates: the screen's while
// the frame fills it, else the frame's own. Without known positions, the frame counts as centred.
QRect frmMdi::placementRect() const {
    const QRect whole = screen()->geometry(), frame = frameGeometry();
    const bool known = placesAreKnown();
    const bool covers = known && frame.contains(screen()->availableGeometry());
    if (!covers && !isMaximized() && !isFullScreen()) return rect();
    const int left = known ? geometry().x() - whole.x() : (whole.width() - width()) / 2;
    return {QPoint{-left, 0}, whole.size()};
}

// The left edge of something of that width that is centred, but not outside the frame.
int frmMdi::centredLeft(int width) const {
    const QRect room = placementRect();
    return std::clamp(room.x() + room.width() / 2 - width / 2, 0, std::max(0, this->width() - width));
}

// Distances, in twips, are from the right edge of the screen, or of a frame that does not reach it.
// Intentional: the middle gap is wider. Buttons that the banner would overlap move to a second row.
void frmMdi::placeStrip() {
    const QRect room = placementRect();
    const bool reaches = placesAreKnown() && room.right() <= frameGeometry().right() - geometry().x();
    const int edge = reaches ? room.right() + 1 : width();
    const auto leftAt = [=](int distance) { return edge - pixels(buttonWidth + distance); };
    const int bannerLeft = centredLeft(lblBanner->width());
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
    const QSize size = chart_->fitInto(room - decoration) + decoration;
    chartWindow_->setFixedSize(size);
    chartWindow_->move(centredLeft(size.width()), std::max(0, (room.height() - size.height()) / 2));
}

// Places on the screen change in a frame that moves. Before the frame is visible, its area has no size.
void frmMdi::moveEvent(QMoveEvent* event) {
    QMainWindow::moveEvent(event);
    if (!isVisible()) return;
    placeStrip();
    placeChart();
}

void frmMdi::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    placeStrip();
    // Not left to the event loop: the chart would be painted twice when the strip changes its height.
    centralWidget()->layout()->activate();
}

// Closing the chart window by its title bar is Exit; a double click on its icon is not.
bool frmMdi::eventFilter(QObject* watched, QEvent* event) {
    if (watched == chartWindow_ && event->type() == QEvent::MouseButtonDblClick) return true;
    if (watched == chartWindow_ && event->type() == QEvent::Close) {
        event->ignore();
        cmdMdiExit_Click();
        return true;
    }
    // Before the frame is painted at its new size, so that the chart is painted only once.
    if (watched == area_->viewport() && event->type() == QEvent::Resize) placeChart();
    return QMainWindow::eventFilter(watched, event);
}

// The access keys of the chart window's menus would work only while the focus is in that window.
void frmMdi::keyPressEvent(QKeyEvent* event) {
    if (event->modifiers() == Qt::AltModifier) chart_->openMenu(event->key());
    QMainWindow::keyPressEvent(event);
}

void frmMdi::closeEvent(QCloseEvent*) { emit closed(); }
