// The labels of the chart as a person sees them: room and colours, in the real font.

#include "display/label_places.h"

#include <map>

#include "display/frmDisplay.h"
#include "form_driver.h"
#include "style/controls.h"

namespace {

class Labels : public testing::Test {
  protected:
    void scaleTo(int minorPixels) {
        const QSize menu{0, display_.findChild<QMenuBar*>()->sizeHint().height()};
        display_.resize(display_.fitInto(ChartScale{minorPixels}.chartSize() + menu));
    }

    frmDisplay display_{cast(handCharts[0].entry), handCharts[0].entry};  // Zi Wei is in its first cell
};

// Every text that each label ever shows.
std::map<std::string_view, std::set<QString>> allTexts() {
    std::map<std::string_view, std::set<QString>> texts;
    for (int day = 0; day < 1000; ++day) {
        const ChartModel chart = cast({u"A", {day % 28, day % 12, day % yearCount}, 1 + day % 23, 0});
        for (const ChartCell& cell : chart.cells) {
            for (const CellField& field : cellFields)
                texts[field.name].insert(latinLines(shownIn(cell, field)));
        }
    }
    return texts;
}

TEST_F(Labels, HaveRoomInACellAllAtOnce) {
    const auto texts = allTexts();
    const int dots = qRound(display_.devicePixelRatioF());
    for (int scale = std::max(6, 10 / dots); scale <= 40 / dots; ++scale) {  // up to screens of 3840 x 2160
        scaleTo(scale);
        QRegion taken;
        for (const CellLabel& row : cellLabels) {
            auto* label = display_.findChild<QLabel*>(latin(row.name) + "(0)");
            const QRect place = label->geometry();
            EXPECT_TRUE(label->parentWidget()->rect().contains(place)) << row.name << scale;
            EXPECT_FALSE(taken.intersects(place)) << row.name << " meets another label at " << scale;
            taken += place;
            for (const QString& text : texts.at(row.name)) {
                label->setText(text);
                const QSize needed =
                    label->sizeHint() - QSize{0, 1};  // what a line can spare above its letters
                EXPECT_EQ(needed.boundedTo(place.size()), needed)
                    << text.toStdString() << " is cut at " << scale;
            }
        }
    }
}

TEST_F(Labels, CanBeReadOnALightChartEvenOnADarkDesktop) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette{QColor{40, 40, 40}});
    scaleTo(12);
    display_.show();
    QCoreApplication::processEvents();
    int count = 0;
    for (const QLabel* shown : display_.findChildren<QLabel*>()) {
        if (shown->text().isEmpty() || !shown->isVisible()) continue;
        ++count;
        const QImage ground = shown->parentWidget()->grab().toImage();
        const QColor paper = ground.pixelColor(2, ground.height() / 2);  // left of all text
        const QColor letters = shown->palette().color(shown->foregroundRole());
        EXPECT_GE(look::contrast(paper, letters), 4.5) << shown->objectName().toStdString();
    }
    EXPECT_GT(count, 80);
    QApplication::setPalette(before);
}

TEST(Look, MakesSelectionsAndTitlesLegible) {
    EXPECT_NEAR(look::contrast(QColor{0x76, 0x76, 0x76}, Qt::white), 4.54, 0.01);
    const std::pair<QColor, QColor> selections[]{{{53, 132, 228}, Qt::white}, {Qt::cyan, Qt::black}};
    for (const auto& [ground, letters] : selections) {
        QPalette desktop;
        desktop.setColor(QPalette::Highlight, ground);
        desktop.setColor(QPalette::HighlightedText, letters);
        desktop.setColor(QPalette::Text, Qt::white);
        const QPalette mended = look::legibleSelection(desktop).resolve(desktop);
        const QColor behind = mended.color(QPalette::Highlight);
        EXPECT_GE(look::contrast(behind, mended.color(QPalette::HighlightedText)), 4.5);
        EXPECT_EQ(behind == ground, ground == Qt::cyan) << "only that one is legible as it is";
        const QPalette title = look::legibleTitle(desktop);
        EXPECT_GE(look::contrast(title.color(QPalette::Highlight), Qt::white), 4.5);
        EXPECT_GE(look::contrast(title.color(QPalette::Text), Qt::white), 4.5);
    }
}

}  // namespace
