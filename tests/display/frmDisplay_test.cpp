// The chart window: what it shows of a chart, and how a person moves about in it.

#include "display/frmDisplay.h"

#include <QSignalSpy>

#include "form_driver.h"

namespace {

class ChartWindow : public testing::Test {
  protected:
    void show(BirthEntry entry) {
        LunarMonth = 0;
        ASSERT_EQ(generateChart(entry, chart_), Generation::done);
        display_.showChart(chart_, entry);
        display_.resize(display_.fitInto({1100, 800}));
        display_.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&display_));
    }
    QString text(const char* label) const {
        return display_.findChild<QLabel*>(QLatin1String{label})->text();
    }
    QWidget* cover(int cell) const { return display_.findChild<QWidget*>("lblCover(%1)"_q.arg(cell)); }

    // What is drawn in the cell, in the words of a chart worked out by hand.
    std::string drawnLine(int cell) const {
        std::string line;
        const auto add = [&](std::string_view name) {
            const auto object = std::string{name} + "(" + std::to_string(cell) + ")";
            const auto* label = display_.findChild<QLabel*>(QString::fromStdString(object));
            if (label->isVisible())
                addLabel(line, name, label->text().replace("\n"_q, "\r\n"_q).toStdString());
        };
        for (const CaptionField& caption : captionFields) add(caption.name);
        for (const FlagField& flag : flagFields) add(flag.name);
        return line;
    }

    ChartModel chart_;
    frmDisplay display_;
};

TEST_F(ChartWindow, ShowsAChartWorkedOutByHand) {
    BirthEntry entry = handCharts[1].entry;
    entry.name = u" <b>X</b>&amp; ";
    show(entry);
    for (const QLabel* label : display_.findChildren<QLabel*>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
    for (int cell = 0; cell < cellCount; ++cell)
        EXPECT_EQ(drawnLine(cell), handCharts[1].cells[std::size_t(cell)]);
    QStringList header;
    for (const char* label : {"lblName", "lblDateOfBirth", "lblTimeOfBirth", "lblElement", "lblYear",
                              "lblMonth", "lblLifePalaceat", "lblBodyPalaceat"})
        header += text(label);
    EXPECT_EQ(header.join("|"_q), " <b>X</b>&amp; |March/1/1992|0:0|Metal|1992|1|Yin|Yin"_q);
}

TEST_F(ChartWindow, HintsAtWhatThePointerOrTheFocusIsOn) {
    show(handCharts[0].entry);
    const auto hintIs = [this](const QString& hint) {
        return QTest::qWaitFor([&] { return text("lblCaption") == hint; }, 2000);
    };
    const QString onGround = "Hold Your Mouse Button On The Palace"_q;
    const QString onCell = "Click To Know More Abut This Palace And Stars"_q;
    QTest::mouseMove(cover(8));
    for (const char* ground : {"Frame2", "gfg"}) {
        QTest::mouseMove(find(QLatin1String{ground}), {2, 2});
        EXPECT_TRUE(hintIs(onGround)) << ground;
        QTest::mouseMove(cover(4));
        EXPECT_TRUE(hintIs(onCell));
    }
    QTest::mouseMove(find("gfg"_q), {2, 2});
    EXPECT_TRUE(hintIs(onGround));
    cover(4)->setFocus();
    EXPECT_TRUE(hintIs(onCell));
    cover(4)->clearFocus();
    EXPECT_TRUE(hintIs(onGround));
}

TEST_F(ChartWindow, IsWalkedByArrowKeysAndOpenedByKeysAndClicks) {
    show(handCharts[0].entry);
    QSignalSpy clicked{&display_, &frmDisplay::palaceClicked}, left{&display_, &frmDisplay::tabbedOut};
    cover(0)->setFocus();
    const auto walk = [this](const QString& steps) {
        std::string path;
        for (const QChar step : steps) {
            const std::array keys{Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down};
            QTest::keyClick(display_.focusWidget(), keys[std::size_t("lurd"_q.indexOf(step))]);
            path += display_.focusWidget()->objectName().mid(8).toStdString();
        }
        return path;
    };
    EXPECT_EQ(walk("uuurrrdddlll"_q), "(1)(2)(3)(4)(5)(6)(7)(8)(9)(10)(11)(0)");
    EXPECT_EQ(walk("lurdluuu"_q), "(0)(1)(8)(9)(10)(5)(5)(5)") << "edges, and across the centre";
    QTest::keyClick(display_.focusWidget(), Qt::Key_Return);
    QTest::keyClick(display_.focusWidget(), Qt::Key_Space);
    QTest::mouseClick(cover(7), Qt::LeftButton);
    QList<int> cells;
    for (const auto& arguments : clicked) cells += arguments.at(0).toInt();
    EXPECT_EQ(cells, (QList<int>{5, 5, 7}));
    QTest::keyClick(display_.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(left.count(), 1);
}

TEST_F(ChartWindow, TellsACellAsASentence) {
    show(handCharts[0].entry);
    EXPECT_EQ(cover(0)->accessibleName(),
              "Health palace, Yin, stem Wu: Zi Wei, Tian Fu, Tian Gui, Yin Sha, Qing Yang, Hua ke"_q);
    EXPECT_EQ(cover(5)->accessibleName(), "Life Palace, Wei, stem Gui, element Wood: Tian Liang, Hua Quan"_q);
    EXPECT_TRUE(cover(7)->accessibleName().endsWith("Tian Tong, Feng Gao, Tian Xing; Body Palace"_q));
}

}  // namespace
