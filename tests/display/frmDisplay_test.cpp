// The chart window: what it shows, its labels in the real font, and how a person moves about in it.

#include "display/frmDisplay.h"

#include <cmath>
#include <map>

#include "display/chart_accessibility.h"
#include "display/label_places.h"
#include "form_driver.h"

namespace {

struct ChartWindow : testing::Test {
    void show(const QSize& room = {1100, 800}, std::u16string name = u"JOHN SMITH") {
        const BirthEntry entry{std::move(name), handBirth.date, 13, 1};
        chart_ = cast(entry);
        display_ = std::make_unique<frmDisplay>(chart_, entry);
        display_->resize(display_->fitInto(room));
        display_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(display_.get()));
    }
    static QWidget* cover(int cell) { return find(QString("lblCover(%1)").arg(cell)); }

    ChartModel chart_;
    std::unique_ptr<frmDisplay> display_;
};

TEST_F(ChartWindow, ShowsTheWholeChartAndTellsItInSentences) {
    show({1100, 800}, u" <b>X</b>&amp; ");
    for (auto* label : display_->findChildren<QLabel*>()) EXPECT_EQ(label->textFormat(), Qt::PlainText);
    for (const CellIndex cell : allCells)
        for (const CellField& field : cellFields) {
            const QLabel* label = find<QLabel>(latin(field.name) + QString("(%1)").arg(cell.value()));
            EXPECT_EQ(label->isVisible() ? label->text() : "", latinLines(shownIn(chart_.cell(cell), field)));
        }
    const QLabel* ofZiWei = find<QLabel>("lblEarthlyBranches(0)");
    EXPECT_TRUE(ofZiWei->font().bold() && ofZiWei->palette().windowText().color() == look::green);
    QStringList header;
    for (auto* label : find("Frame2")->findChildren<QLabel*>()) header += label->text();
    EXPECT_EQ(header.join("|"),
              " <b>X</b>&amp; |March/5/1985|13:1|Element|Wood|Year|1985|Lunar Month|1|"
              "Your Life Palace at|Wei|Your Body Palace at|You");
    EXPECT_TRUE(spokenCell(ChartModel{}, CellIndex{3}).endsWith(": no stars"));
    EXPECT_TRUE(cover(5)->accessibleName().startsWith("Life Palace, Wei, stem Gui, element Wood: Tian L"));
    EXPECT_EQ(cover(7)->accessibleName(),
              "Fortune palace, You, stem Yi: Tian Tong, Feng Gao, Tian Xing; Body Palace");
}

TEST_F(ChartWindow, HintsAtWhatThePointerIsOnOrTheKeysLedTo) {
    show();
    const auto expectHint = [](const char* hint) { await([=] { return textOf("lblCaption") == hint; }); };
    const char* onGround = "Hold Your Mouse Button On The Palace";
    const char* onCell = "Click To Know More Abut This Palace And Stars";
    QTest::mouseMove(cover(4));
    expectHint(onCell);
    QTest::mouseClick(cover(4), Qt::LeftButton);
    QTest::mouseMove(find("Frame2"), {2, 2});
    expectHint(onGround);
    press("Right", cover(4));
    expectHint(onCell);
    QTest::mouseMove(find("gfg"), {2, 2});
    expectHint(onGround);
}

TEST_F(ChartWindow, IsAsLargeAsFitsAndScrollsOnlyWhereItCouldNotBeRead) {
    for (const QSize& room : {QSize{1270, 940}, {1900, 950}, {2500, 600}, {900, 2000}, {840, 600}}) {
        show(room);
        const bool whole = find<QScrollArea>()->viewport()->size() == find("gfg")->size();
        EXPECT_EQ(whole, room.width() != 840 || display_->devicePixelRatioF() > 1) << room.width();
        EXPECT_TRUE(display_->width() > room.width() * 8 / 10 || display_->height() > room.height() * 8 / 10);
    }
    show({940, 400});
    EXPECT_EQ(find<QScrollArea>()->horizontalScrollBar()->maximum(), 0) << "down only";
    show({500, 900});
    EXPECT_EQ(find<QScrollArea>()->verticalScrollBar()->maximum(), 0) << "across only";
    show({500, 300});
    EXPECT_EQ(find<QScrollArea>()->verticalScrollBar()->value(), 0) << "begins at its top";
    cover(6)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(cover(6)->visibleRegion().boundingRect(), cover(6)->rect()) << "the focus is in sight";
    auto* bar = find<QScrollArea>()->horizontalScrollBar();
    cover(6)->clearFocus();
    bar->setValue(bar->value() - cover(6)->width() / 2);
    const int before = bar->value();
    QTest::mouseClick(cover(6), Qt::LeftButton, {}, {2, 2});
    EXPECT_EQ(bar->value(), before) << "what is pressed stays under the pointer";
}

using Picture = Program;

TEST_F(Picture, ShowsTheChartAsOnTheScreenWithoutFocusAndPointer) {
    showChart();
    auto* client = find("frmDisplay")->findChild<QScrollArea*>();
    QWidget *frame = find("frmMdi"), *cell = find("lblCover(4)");
    const auto shownWithPointerAt = [&](QWidget* widget) {
        QTest::mouseMove(widget, {2, 2});
        await([&] { return cell->underMouse() == (widget == cell); });
        const QPixmap shown = client->grab({{}, client->size() - QSize{0, 40}});  // without the hint
        return shown.toImage().convertToFormat(QImage::Format_RGB32);
    };
    const QImage plain = shownWithPointerAt(frame);
    cell->setFocus();
    const QImage focused = shownWithPointerAt(frame);
    EXPECT_NE(focused, plain);
    EXPECT_NE(shownWithPointerAt(cell), focused);
    EXPECT_EQ(savePicture("chart"), "");
    const QImage picture = QImage{in("chart.jpg").c_str()}.copy(plain.rect()).convertToFormat(plain.format());
    ASSERT_FALSE(picture.isNull());
    double squares = 0;
    for (int i = 0; i < plain.sizeInBytes(); ++i)
        squares += std::pow(picture.constBits()[i] - plain.constBits()[i], 2);
    EXPECT_LE(squares / static_cast<double>(plain.sizeInBytes()), 1.5) << "45 dB";
    EXPECT_EQ(shownWithPointerAt(frame), focused);
    frame->showNormal();
    await([&] { return frame->width() < frame->screen()->size().width() * 9 / 10; });
    const QWidget& whole = *client->widget();
    for (const auto& [size, name] : {std::pair{QSize{500, 700}, "across.jpg"}, {{1000, 400}, "down.jpg"}}) {
        frame->resize(size);
        await([&, size = size] { return frame->size() == size; });
        EXPECT_NE(whole.width() > client->width(), whole.height() > client->height()) << name;
        EXPECT_EQ(savePicture(name), "");
        EXPECT_EQ(QImage(in(name).c_str()).size(), whole.size()) << name;
    }
}

using Labels = ChartWindow;

TEST_F(Labels, HaveRoomInACellAllAtOnce) {
    show();
    std::map<std::string_view, std::set<QString>> texts;  // that each label ever shows
    for (int day = 0; day < 1000; ++day)
        for (const ChartCell& cell : cast({u"", {day % 28, day % 12, day % 43}, 1 + day % 23, 0}).cells)
            for (const auto& field : cellFields) texts[field.name].insert(latinLines(shownIn(cell, field)));
    const QSize menu{0, find<QMenuBar>()->sizeHint().height()};
    const int dots = qRound(display_->devicePixelRatioF());
    for (int scale = std::max(6, 10 / dots); scale <= 40 / dots; ++scale) {  // up to screens of 3840 x 2160
        display_->fitInto(ChartScale{scale}.chartSize() + menu);
        QRegion taken;
        for (const CellLabel& row : cellLabels) {
            auto* label = find<QLabel>(latin(row.name) + "(0)");  // in the cell of Zi Wei
            const QRect place = label->geometry();
            EXPECT_TRUE(label->parentWidget()->rect().contains(place)) << row.name << scale;
            EXPECT_FALSE(taken.intersects(place)) << row.name << " meets another label at " << scale;
            taken += place;
            for (const QString& text : texts.at(row.name)) {
                label->setText(text);
                const QSize needed = label->sizeHint() - QSize{0, 1};  // what a line can spare
                EXPECT_EQ(needed.boundedTo(place.size()), needed) << text.toStdString() << " at " << scale;
            }
        }
    }
}

TEST_F(Labels, CanBeReadOnALightChartEvenOnADarkDesktop) {
    QApplication::setPalette(QPalette{QColor{40, 40, 40}});
    show();
    for (const QLabel* shown : display_->findChildren<QLabel*>()) {
        const QImage ground = shown->parentWidget()->grab().toImage();
        const QColor paper = ground.pixelColor(2, ground.height() / 2);  // left of all text
        const QColor letters = shown->palette().color(shown->foregroundRole());
        EXPECT_GE(look::contrast(paper, letters), 4.5) << shown->objectName().toStdString();
    }
    const frmPalaceAnalysis analysis{AnalysisKind::onePalace, {}, {}, display_.get()};
    EXPECT_EQ(analysis.findChild<QTextEdit*>()->palette().color(QPalette::Base), look::paper);
    QApplication::setPalette({});
}

}  // namespace
