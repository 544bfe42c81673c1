#include "display/frmDisplay.h"

#include <QEvent>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "display/cell_square.h"
#include "display/chart_accessibility.h"
#include "display/elided_label.h"
#include "style/look.h"

namespace {

constexpr auto backgroundHint = "Hold Your Mouse Button On The Palace";
// "Abut" is the system's own word.
constexpr auto cellHint = "Click To Know More Abut This Palace And Stars";

QString latin(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

// A label shows CR LF as one line break.
QString labelText(const Caption& caption) {
    return latin(caption.text()).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

const QColor& colourOf(CellStyle style) {
    switch (style) {
        case CellStyle::quiet:
            return look::quiet;
        case CellStyle::palace:
        case CellStyle::body:
            return look::brown;
        case CellStyle::tianFuGroup:
            return look::blue;
        case CellStyle::ziWeiGroup:
            return look::green;
        case CellStyle::transformation:
            return look::red;
        case CellStyle::minor:
            break;
    }
    return look::ink;
}

void colour(QWidget* widget, const QColor& text) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, text);
    widget->setPalette(palette);
}

std::size_t indexOfCellLabel(std::string_view name) {
    const auto table = cellLabels();
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].name == name) return i;
    }
    return table.size();
}

QFont scaledFont(const ChartScale& scale, LabelStyle style) {
    return look::chartFont(scale.fontPixels(style.pixelSize), style.bold);
}

// The room that a text needs in a font. Lines that follow one another are each rounded up to whole pixels; a
// line by itself is not, so that it stays clear of the label below it.
QSize textSize(const QFont& font, std::string_view text) {
    const QFontMetricsF metrics{font};
    const QStringList lines = latin(text).split(QStringLiteral("\r\n"));
    double width = 0;
    for (const QString& line : lines) width = std::max(width, metrics.horizontalAdvance(line));
    const int single = std::min(QFontMetrics{font}.height(), qRound(metrics.height()));
    const int height = lines.size() == 1 ? single : static_cast<int>(lines.size()) * qCeil(metrics.height());
    return {qCeil(width) + 1, height};
}

}  // namespace

frmDisplay::frmDisplay() {
    setObjectName(QStringLiteral("frmDisplay"));
    setWindowTitle(tr("Palace Lantern Chart"));
    gfg = new QWidget;
    gfg->setObjectName(QStringLiteral("gfg"));
    QPalette papers;
    papers.setColor(QPalette::Window, look::ground);
    papers.setColor(QPalette::WindowText, look::ink);
    gfg->setPalette(papers);
    gfg->setAutoFillBackground(true);
    Frame1 = new ChartSquare{gfg};
    Frame1->setAccessibleName(tr("Chart"));
    Frame1->setObjectName(QStringLiteral("Frame1"));
    createCells();
    createCentre();
    lblCaption = new QLabel{gfg};
    lblCaption->setObjectName(QStringLiteral("lblCaption"));
    lblCaption->setTextFormat(Qt::PlainText);
    lblCaption->setText(QLatin1String{backgroundHint});
    lblCaption->setAlignment(Qt::AlignCenter);
    colour(lblCaption, look::brown);
    for (QWidget* background : std::initializer_list<QWidget*>{gfg, Frame1, Frame2}) {
        background->setMouseTracking(true);
        background->installEventFilter(this);
    }

    scroll_ = new QScrollArea;
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setAutoFillBackground(true);  // so that a picture of it has no use for transparency
    scroll_->setWidget(gfg);
    createMenus();
    auto* rows = new QVBoxLayout{this};
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->setMenuBar(menus_);
    rows->addWidget(scroll_);
}

// A cell loses the focus while the window goes, and has nobody to tell by then.
frmDisplay::~frmDisplay() {
    for (LblCover* cover : lblCover) cover->disconnect(this);
}

void frmDisplay::createMenus() {
    menus_ = new QMenuBar{this};
    menus_->setNativeMenuBar(false);
    QMenu* mnuFile = menus_->addMenu(tr("&File"));
    mnuFile->setObjectName(QStringLiteral("mnuFile"));
    const auto addEntry = [this, mnuFile](const char* name, const char* words, void (frmDisplay::*wanted)()) {
        mnuFile->addAction(QString::fromLatin1(words), this, wanted, Qt::QueuedConnection)
            ->setObjectName(QString::fromLatin1(name));
    };
    addEntry("mnuShowAll", "Show All", &frmDisplay::showAllRequested);
    addEntry("mnuSavejpg", "Save as JPG", &frmDisplay::savePictureRequested);
    mnuFile->addSeparator();
    addEntry("mnuFileBack", "&Back", &frmDisplay::backRequested);
    addEntry("mnuExit", "E&xit", &frmDisplay::exitRequested);
    auto* mnuHelp = new HelpMenu{menus_};
    menus_->addMenu(mnuHelp);
    connect(mnuHelp, &HelpMenu::pageRequested, this, &frmDisplay::pageRequested);
    connect(mnuHelp, &HelpMenu::aboutRequested, this, &frmDisplay::aboutRequested);
}

void frmDisplay::openMenu(int key) {
    const QKeySequence wanted{QKeyCombination{Qt::ALT, static_cast<Qt::Key>(key)}};
    for (QAction* menu : menus_->actions()) {
        if (QKeySequence::mnemonic(menu->text()) == wanted) menus_->setActiveAction(menu);
    }
}

void frmDisplay::createCells() {
    const auto table = cellLabels();
    for (const CellIndex cell : allCells) {
        auto* square = new CellSquare{cell, Frame1};
        Square[cell.index()] = square;
        for (std::size_t i = 0; i < table.size(); ++i) {
            auto* label = new QLabel{square};
            label->setObjectName(latin(table[i].name) + QStringLiteral("(%1)").arg(cell.value()));
            label->setTextFormat(Qt::PlainText);
            const bool oneLine = table[i].longestText.find('\n') == std::string_view::npos;
            // What a line can spare is above its letters.
            label->setAlignment(Qt::AlignLeft | (oneLine ? Qt::AlignBottom : Qt::AlignTop));
            if (table[i].style != CellStyle::minor) colour(label, colourOf(table[i].style));
            labels_[cell.index()][i] = label;
        }
    }
    Frame2 = new QWidget{Frame1};
    Frame2->setObjectName(QStringLiteral("Frame2"));
    for (const CellIndex cell : allCells) {
        auto* cover = new LblCover{cell, Frame1};
        lblCover[cell.index()] = cover;
        connect(cover, &LblCover::clicked, this, [this, cell] { emit palaceClicked(cell.value()); });
        connect(cover, &LblCover::pointedAt, this, &frmDisplay::lblCover_Hover);
        connect(cover, &LblCover::focused, this, &frmDisplay::makeTabStop);
        connect(cover, &LblCover::left, this, &frmDisplay::background_Hover);
        connect(cover, &LblCover::stepWanted, this,
                [this, cell](int columnStep, int rowStep) { moveFocus(cell, columnStep, rowStep); });
    }
}

void frmDisplay::createCentre() {
    for (const CentreLabel& place : centreLabels()) {
        QLabel* label = place.style == CentreStyle::name ? new ElidedLabel{Frame2} : new QLabel{Frame2};
        label->setObjectName(latin(place.name));
        label->setTextFormat(Qt::PlainText);
        label->setText(latin(place.prompt));
        label->setAlignment(place.centred ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter);
        colour(label, place.style == CentreStyle::prompt    ? look::quiet
                      : place.style == CentreStyle::heading ? look::brown
                                                            : look::blue);
        centre_.push_back(label);
    }
}

QLabel* frmDisplay::centreLabel(std::string_view name) const {
    const auto table = centreLabels();
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (table[i].name == name) return centre_[i];
    }
    return nullptr;
}

void frmDisplay::showChart(const ChartModel& chart, const BirthEntry& entry) {
    fillHeader(chart, entry);
    fillCells(chart);
}

void frmDisplay::fillHeader(const ChartModel& chart, const BirthEntry& entry) {
    centreLabel("lblName")->setText(QString::fromStdU16String(entry.name));
    centreLabel("lblDateOfBirth")
        ->setText(QStringLiteral("%1/%2/%3")
                      .arg(latin(entry.date.monthText()))
                      .arg(entry.date.day())
                      .arg(entry.date.year()));
    centreLabel("lblTimeOfBirth")
        ->setText(QStringLiteral("%1:%2").arg(entry.hourPosition).arg(entry.minutePosition));
    centreLabel("lblElement")->setText(latin(chart.lblElement.text()));
    centreLabel("lblYear")->setText(QString::number(entry.date.year()));
    centreLabel("lblMonth")->setText(QString::number(chart.lunarMonth));
    centreLabel("lblLifePalaceat")->setText(latin(chart.lblLifePalaceat.text()));
    centreLabel("lblBodyPalaceat")->setText(latin(chart.lblBodyPalaceat.text()));
}

void frmDisplay::fillCells(const ChartModel& chart) {
    for (const CaptionField& caption : captionFields) {
        const std::size_t label = indexOfCellLabel(caption.name);
        for (const CellIndex cell : allCells) {
            const Caption& text = chart.cell(cell).*caption.field;
            if (!text.empty()) labels_[cell.index()][label]->setText(labelText(text));
        }
    }
    for (const CellIndex cell : allCells) {
        holdsZiWei_[cell.index()] = chart.cell(cell).lblEarthlyBranches != branchNames[cell.index()];
    }
    leadWithZiWei();
    for (const FlagField& flag : flagFields) {
        const std::size_t label = indexOfCellLabel(flag.name);
        for (const CellIndex cell : allCells) {
            labels_[cell.index()][label]->setText(latin(flag.text));
            labels_[cell.index()][label]->setVisible(chart.cell(cell).*flag.field);
        }
    }
    for (const CellIndex cell : allCells) lblCover[cell.index()]->setAccessibleName(spokenCell(chart, cell));
}

// A branch is quiet, but where Zi Wei stands above it, the label leads like the other major stars.
void frmDisplay::leadWithZiWei() {
    const std::size_t branch = indexOfCellLabel("lblEarthlyBranches");
    for (const CellIndex cell : allCells) {
        if (!holdsZiWei_[cell.index()]) continue;
        QLabel* label = labels_[cell.index()][branch];
        label->setFont(scaledFont(scale_, {styleOf(CellStyle::quiet).pixelSize, true}));
        colour(label, look::green);
    }
}

QSize frmDisplay::fitInto(const QSize& room) {
    const QSize menuRoom{0, menus_->sizeHint().height()};
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
    const int hintTop = Frame1->geometry().bottom() + 1 + scale.margin() / 2;
    lblCaption->setGeometry(0, hintTop, gfg->width(), scale.pixels(hintHeight));
    lblCaption->setFont(scaledFont(scale, {11, false}));
    placeCells();
    placeCentre();
}

void frmDisplay::placeCells() {
    gfg->setFont(scaledFont(scale_, styleOf(CellStyle::minor)));
    const auto table = cellLabels();
    for (const CellIndex cell : allCells) {
        Square[cell.index()]->setGeometry(scale_.cellFrame(cell));
        lblCover[cell.index()]->setGeometry(scale_.cellFrame(cell));
    }
    for (std::size_t i = 0; i < table.size(); ++i) {
        const QFont font = scaledFont(scale_, styleOf(table[i].style));
        const QSize least{scale_.pixels(table[i].minimumWidth), 0};
        const QRect place{QPoint{scale_.pixels(table[i].left), scale_.pixels(table[i].top)},
                          textSize(font, table[i].longestText).expandedTo(least)};
        const bool inherits =
            table[i].style == CellStyle::minor || table[i].style == CellStyle::transformation;
        for (const CellLabels& labels : labels_) {
            if (!inherits) labels[i]->setFont(font);
            labels[i]->setGeometry(place);
        }
    }
    leadWithZiWei();
}

void frmDisplay::placeCentre() {
    Frame2->setGeometry(scale_.centreFrame());
    const auto table = centreLabels();
    for (std::size_t i = 0; i < table.size(); ++i) {
        centre_[i]->setFont(scaledFont(scale_, styleOf(table[i].style)));
        centre_[i]->setGeometry(scale_.pixels(table[i].left), scale_.pixels(table[i].top),
                                scale_.pixels(table[i].width), scale_.pixels(table[i].height));
    }
}

QPixmap frmDisplay::clientPicture() { return scroll_->grab(); }

void frmDisplay::lblCover_Hover() { lblCaption->setText(QLatin1String{cellHint}); }

void frmDisplay::background_Hover() { lblCaption->setText(QLatin1String{backgroundHint}); }

// A window inside a frame would keep the Tab key's focus to itself for good.
bool frmDisplay::focusNextPrevChild(bool next) {
    emit tabbedOut(next);
    return true;
}

bool frmDisplay::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::Enter) background_Hover();
    return QWidget::eventFilter(watched, event);
}

// The chart is one stop of the Tab key, at the cell that had the focus last; arrow keys move within it.
void frmDisplay::makeTabStop() {
    for (LblCover* cover : lblCover)
        cover->setFocusPolicy(cover == sender() ? Qt::StrongFocus : Qt::ClickFocus);
}

void frmDisplay::moveFocus(CellIndex from, int columnStep, int rowStep) {
    LblCover* target = lblCover[neighbour(from, columnStep, rowStep).index()];
    target->setFocus(Qt::OtherFocusReason);
    scroll_->ensureWidgetVisible(target, 0, 0);
}
