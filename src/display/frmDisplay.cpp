#include "display/frmDisplay.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

#include "display/chart_accessibility.h"
#include "display/chart_square.h"
#include "help/help_menu.h"
#include "style/controls.h"
#include "style/look.h"

namespace {

constexpr auto backgroundHint = "Hold Your Mouse Button On The Palace";
// Intentional: "Abut".
constexpr auto cellHint = "Click To Know More Abut This Palace And Stars";

// Labels in the chart's own font inherit it and are not set one by one.
bool inheritsFont(LabelKind kind) { return kind == LabelKind::minor || kind == LabelKind::transformation; }

void colour(QWidget* widget, LabelKind kind) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, lookOf(kind).colour);
    widget->setPalette(palette);
}

QFont scaledFont(const ChartScale& scale, LabelKind kind) {
    return look::chartFont(scale.fontPixels(lookOf(kind).pixelSize), lookOf(kind).bold);
}

bool isOneLine(std::size_t label) { return longestTextOf(label).find('\n') == std::string_view::npos; }

// Each of several lines is rounded up to whole pixels; a single one is not: it would overlap the next label.
QSize textSize(const QFont& font, std::string_view text) {
    const QFontMetricsF metrics{font};
    const QStringList lines = latin(text).split(QStringLiteral("\r\n"));
    double width = 0;
    for (const QString& line : lines) width = std::max(width, metrics.horizontalAdvance(line));
    const int single = std::min(QFontMetrics{font}.height(), qRound(metrics.height()));
    const int height = lines.size() == 1 ? single : static_cast<int>(lines.size()) * qCeil(metrics.height());
    return {qCeil(width) + 1, height};
}

// A line that a person has entered: drawn elided and without control characters; text() is the whole.
class ElidedLabel : public QLabel {
  public:
    using QLabel::QLabel;

  protected:
    void paintEvent(QPaintEvent*) override {
        // A very long text takes long to measure; no character is narrower than a pixel.
        QString line = text().left(width());
        for (QChar& character : line) {
            if (!character.isPrint()) character = QLatin1Char(' ');
        }
        QPainter painter{this};
        const QString shown = fontMetrics().elidedText(line, Qt::ElideRight, contentsRect().width());
        painter.setPen(palette().color(foregroundRole()));
        painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine, shown);
    }
};

}  // namespace

frmDisplay::frmDisplay(const ChartModel& chart, const BirthEntry& entry) {
    named(this, "frmDisplay");
    setWindowTitle(QStringLiteral("Palace Lantern Chart"));
    createGround();
    for (const CellIndex cell : allCells) createCell(cell, chart.cell(cell));
    Frame2 = named(new QWidget{Frame1}, "Frame2");
    for (const CellIndex cell : allCells) createCover(cell, chart);
    createCentre();
    fillHeader(chart, entry);

    scroll_ = new QScrollArea;
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setAutoFillBackground(true);  // so that grab() returns an opaque picture
    scroll_->setWidget(gfg);
    createMenus();
    auto* rows = new QVBoxLayout{this};
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->setMenuBar(menus_);
    rows->addWidget(scroll_);
}

void frmDisplay::createGround() {
    gfg = named(new QWidget, "gfg");
    QPalette papers;
    papers.setColor(QPalette::Window, look::ground);
    papers.setColor(QPalette::WindowText, look::ink);
    gfg->setPalette(papers);
    gfg->setAutoFillBackground(true);
    Frame1 = named(new ChartSquare{gfg}, "Frame1");
    Frame1->setAccessibleName(QStringLiteral("Chart"));
    lblCaption = createLabel(gfg, "lblCaption", LabelKind::hint);
    lblCaption->setText(latin(backgroundHint));
    lblCaption->setAlignment(Qt::AlignCenter);
}

void frmDisplay::createMenus() {
    menus_ = newMenuBar(this);
    auto* mnuFile = named(menus_->addMenu(QStringLiteral("&File")), "mnuFile");
    addEntry(mnuFile, "mnuShowAll", "Show All", this, &frmDisplay::showAllRequested);
    addEntry(mnuFile, "mnuSavejpg", "Save as JPG", this, &frmDisplay::savePictureRequested);
    mnuFile->addSeparator();
    addEntry(mnuFile, "mnuFileBack", "&Back", this, &frmDisplay::backRequested);
    addEntry(mnuFile, "mnuExit", "E&xit", this, &frmDisplay::exitRequested);
    menus_->addMenu(newHelpMenu(this));
}

void frmDisplay::openMenu(int key) {
    const QKeySequence wanted{QKeyCombination{Qt::ALT, static_cast<Qt::Key>(key)}};
    for (QAction* menu : menus_->actions()) {
        if (QKeySequence::mnemonic(menu->text()) == wanted) menus_->setActiveAction(menu);
    }
}

QLabel* frmDisplay::createLabel(QWidget* parent, std::string_view name, LabelKind kind) {
    QLabel* label = kind == LabelKind::name ? new ElidedLabel{parent} : new QLabel{parent};
    label->setTextFormat(Qt::PlainText);
    if (kind != LabelKind::minor) colour(label, kind);
    return named(label, name);
}

void frmDisplay::createCell(CellIndex cell, const ChartCell& content) {
    const std::string index = "(" + std::to_string(cell.value()) + ")";
    QWidget* square = named(new QWidget{Frame1}, "Square" + index);
    Square[cell.index()] = square;
    CellLabels& labels = labels_[cell.index()];
    for (std::size_t i = 0; i < labels.size(); ++i) {
        labels[i] = createLabel(square, std::string{cellLabels[i].name} + index, cellLabels[i].kind);
        // The spare room of a single line is above the text.
        labels[i]->setAlignment(Qt::AlignLeft | (isOneLine(i) ? Qt::AlignBottom : Qt::AlignTop));
        if (cellLabels[i].top == 0) labels[i]->setContentsMargins(0, 1, 0, 0);  // clear of the border
        const CellField& field = labelFields[i];
        const Caption& text = field.flag != nullptr ? field.text : content.*field.caption;
        if (!text.empty()) labels[i]->setText(latinLines(text.text()));
        if (field.flag != nullptr) labels[i]->setVisible(content.*field.flag);
    }
    holdsZiWei_[cell.index()] = content.holds(Star::ZiWei);
    if (holdsZiWei_[cell.index()]) colour(labels[rowOf(cellLabels, "lblEarthlyBranches")], LabelKind::ziWei);
}

void frmDisplay::createCover(CellIndex cell, const ChartModel& chart) {
    auto* cover = new LblCover{cell, Frame1};
    lblCover[cell.index()] = cover;
    cover->setAccessibleName(spokenCell(chart, cell));
    connectControl(cover, &LblCover::clicked, this,
                   [cell](frmDisplay* form) { emit form->palaceClicked(cell.value()); });
    cover->installEventFilter(this);
}

void frmDisplay::createCentre() {
    for (std::size_t i = 0; i < centreLabels.size(); ++i) {
        const CentreLabel& place = centreLabels[i];
        centre_[i] = createLabel(Frame2, place.name, place.kind);
        centre_[i]->setText(latin(place.prompt));
        centre_[i]->setAlignment(place.centred ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
    }
}

void frmDisplay::fillHeader(const ChartModel& chart, const BirthEntry& entry) {
    const auto& [name, date, hour, minute] = entry;
    const QString day =
        QStringLiteral("%1/%2/%3").arg(latin(date.monthText())).arg(date.day()).arg(date.year());
    centre_[rowOf(centreLabels, "lblName")]->setText(QString::fromStdU16String(name));
    centre_[rowOf(centreLabels, "lblDateOfBirth")]->setText(day);
    centre_[rowOf(centreLabels, "lblTimeOfBirth")]->setText(QStringLiteral("%1:%2").arg(hour).arg(minute));
    centre_[rowOf(centreLabels, "lblElement")]->setText(latin(chart.lblElement.text()));
    centre_[rowOf(centreLabels, "lblYear")]->setText(QString::number(date.year()));
    centre_[rowOf(centreLabels, "lblMonth")]->setText(QString::number(chart.lunarMonth));
    centre_[rowOf(centreLabels, "lblLifePalaceat")]->setText(latin(chart.lblLifePalaceat.text()));
    centre_[rowOf(centreLabels, "lblBodyPalaceat")]->setText(latin(chart.lblBodyPalaceat.text()));
}

QSize frmDisplay::fitInto(const QSize& room) {
    // The layout uses heightForWidth(), which in some styles is more than the size hint.
    const QSize menuRoom{0, menus_->heightForWidth(room.width())};
    const QSize chartRoom = room - menuRoom;
    applyScale(ChartScale::largestFor(chartRoom, devicePixelRatioF()));
    QSize needed = scale_.chartSize();
    const int bar = scroll_->verticalScrollBar()->sizeHint().width();
    const bool tooHigh = needed.height() > chartRoom.height();
    const bool tooWide = needed.width() > chartRoom.width();
    if (tooHigh) needed.rwidth() += bar;
    if (tooWide) needed.rheight() += bar;
    return (needed + menuRoom).boundedTo(room);
}

void frmDisplay::applyScale(ChartScale scale) {
    if (scale == scale_ && gfg->size() == scale.chartSize()) return;
    scale_ = scale;
    gfg->resize(scale.chartSize());
    Frame1->move(scale.margin(), scale.margin());
    Frame1->setScale(scale);
    const int hintTop = scale.margin() + scale.squareSize().height() + scale.margin() / 2;
    lblCaption->setGeometry(0, hintTop, gfg->width(), scale.pixels(hintHeight));
    lblCaption->setFont(scaledFont(scale, LabelKind::hint));
    placeCells();
    placeCentre();
}

void frmDisplay::placeCells() {
    gfg->setFont(scaledFont(scale_, LabelKind::minor));
    for (std::size_t i = 0; i < cellLabels.size(); ++i) {
        const CellLabel& label = cellLabels[i];
        const QFont font = scaledFont(scale_, label.kind);
        const QSize least{scale_.pixels(label.minimumWidth), 0};
        const QRect place{QPoint{scale_.pixels(label.left), scale_.pixels(label.top)},
                          textSize(font, longestTextOf(i)).expandedTo(least)};
        for (const CellLabels& labels : labels_) {
            if (!inheritsFont(label.kind)) labels[i]->setFont(font);
            labels[i]->setGeometry(place);
        }
    }
    for (const CellIndex cell : allCells) {
        Square[cell.index()]->setGeometry(scale_.cellFrame(cell));
        lblCover[cell.index()]->setGeometry(scale_.cellFrame(cell));
        QLabel* branch = labels_[cell.index()][rowOf(cellLabels, "lblEarthlyBranches")];
        if (holdsZiWei_[cell.index()]) branch->setFont(scaledFont(scale_, LabelKind::ziWei));
    }
}

void frmDisplay::placeCentre() {
    Frame2->setGeometry(scale_.centreFrame());
    for (std::size_t i = 0; i < centreLabels.size(); ++i) {
        const CentreLabel& label = centreLabels[i];
        centre_[i]->setFont(scaledFont(scale_, label.kind));
        centre_[i]->setGeometry(scale_.pixels(label.left), scale_.pixels(label.top),
                                scale_.pixels(label.width), scale_.pixels(label.height));
    }
}

QPixmap frmDisplay::clientPicture() {
    const QSize shown = scroll_->viewport()->size();
    const bool scrolls = gfg->width() > shown.width() || gfg->height() > shown.height();
    for (LblCover* cover : lblCover) cover->setMarked(false);
    QPixmap picture = scrolls ? gfg->grab() : scroll_->grab();
    for (LblCover* cover : lblCover) cover->setMarked(true);
    return picture;
}

void frmDisplay::showHint() {
    const bool onCell = std::ranges::any_of(lblCover, [this](const LblCover* cover) {
        return cover->underMouse() || (keysLead_ && cover->hasFocus());
    });
    lblCaption->setText(latin(onCell ? cellHint : backgroundHint));
}

// The top-level window gets the hover moves over all of its children.
void frmDisplay::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    window()->setAttribute(Qt::WA_Hover);
    window()->installEventFilter(this);
}

bool frmDisplay::eventFilter(QObject* watched, QEvent* event) {
    if (auto* cover = qobject_cast<LblCover*>(watched)) return coverEvent(cover, event);
    if (event->type() != QEvent::HoverMove) return QWidget::eventFilter(watched, event);
    keysLead_ = false;
    showHint();
    return true;
}

bool frmDisplay::coverEvent(LblCover* cover, QEvent* event) {
    switch (event->type()) {
        case QEvent::Enter:
        case QEvent::Leave:
            cover->update();
            showHint();
            return false;
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            followFocus(cover, static_cast<QFocusEvent*>(event)->reason());
            return false;
        case QEvent::KeyPress:
            return moveFocus(cover, static_cast<QKeyEvent*>(event)->key());
        default:
            return false;
    }
}

// Moves the focus to the next cell if the key is an arrow key, and returns whether it is.
bool frmDisplay::moveFocus(const LblCover* from, int key) {
    const QPoint step{(key == Qt::Key_Right) - (key == Qt::Key_Left),
                      (key == Qt::Key_Down) - (key == Qt::Key_Up)};
    if (step.isNull()) return false;
    const auto cell = std::ranges::find(lblCover, from) - lblCover.begin();
    const CellIndex next = neighbour(CellIndex{static_cast<int>(cell)}, step);
    lblCover[next.index()]->setFocus(Qt::OtherFocusReason);
    return true;
}

// The chart is one stop in the tab order, at the cell that had the focus last; arrow keys move within it.
// Only keys scroll: a clicked cell stays below the pointer, and a chart that is shown begins at its top.
void frmDisplay::followFocus(LblCover* cover, Qt::FocusReason reason) {
    if (cover->hasFocus()) {
        for (LblCover* other : lblCover)
            other->setFocusPolicy(other == cover ? Qt::StrongFocus : Qt::ClickFocus);
        const bool byKey = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                           reason == Qt::OtherFocusReason;
        if (byKey) scroll_->ensureWidgetVisible(cover, 0, 0);
        keysLead_ = byKey || (keysLead_ && reason != Qt::MouseFocusReason);
    }
    showHint();
}
