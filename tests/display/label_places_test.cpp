// The labels of the chart as a person sees them: places, room and colours, in the real font.

#include "display/label_places.h"

#include <QMenuBar>
#include <map>

#include "display/frmDisplay.h"
#include "form_driver.h"
#include "style/look.h"

namespace {

// Shows a chart in whose first cell all 35 labels are filled at once.
class Labels : public testing::Test {
  protected:
    Labels() {
        ChartModel chart = cast(handCharts[0].entry);  // its Zi Wei is in the first cell
        ChartCell& first = chart.cell(CellIndex{0});
        for (const ChartCell& cell : chart.cells) {
            for (const auto& [name, field] : captionFields) {
                if ((first.*field).empty()) first.*field = cell.*field;
            }
        }
        for (const FlagField& flag : flagFields) first.*flag.field = true;
        display_.showChart(chart, {u"A", {}, 0, 0});
    }

    void scaleTo(int minorPixels) {
        const QSize menu{0, display_.findChild<QMenuBar*>()->sizeHint().height()};
        display_.resize(display_.fitInto(ChartScale{minorPixels}.chartSize() + menu));
    }
    QLabel* label(std::string_view name) const {
        return display_.findChild<QLabel*>(QString::fromStdString(std::string{name} + "(0)"));
    }

    frmDisplay display_;
};

// Every text that the label may ever show, where there are several.
QStringList textsOf(const QLabel& label) {
    const auto words = [](const char* list) { return QString::fromLatin1(list).split(","_q); };
    static const std::map<QString, QStringList> several{
        {"lblEarthlyBranches(0)"_q, words("Zi Wei\nChou,Zi Wei\nChen,Zi Wei\nShen")},
        {"lblPalaceSteam(0)"_q, words("Water\nGeng,Metal\nDing,Earth\nBing,Wood\nXin,Fire\nRen")},
        {"lblPalace(0)"_q, words("Life Palace,Siblings,Marriage,Children,Property,Fortune,Parents")},
        {"lblMajorStars(0)"_q, words("Tian Ji,Tai Yang,Wu Qu,Tian Tong,Lian Zhen")},
        {"lblTianFu(0)"_q, words("Tian Fu,Tai Yin,Tan Lang,Ju Men,Tian Xiang,Tian Liang,Qi Sha,Po Jun")}};
    const auto found = several.find(label.objectName());
    return found == several.end() ? QStringList{label.text()} : found->second;
}

// How many dots of the screen the label's letters take.
qsizetype ink(QLabel& label) {
    QImage image{label.size() * label.devicePixelRatioF(), QImage::Format_Alpha8};
    image.setDevicePixelRatio(label.devicePixelRatioF());
    image.fill(Qt::transparent);
    label.render(&image, {}, {}, QWidget::RenderFlags{});
    qsizetype dots = 0;
    for (int y = 0; y < image.height(); ++y)
        dots += image.width() - std::count(image.scanLine(y), image.scanLine(y) + image.width(), 0);
    return dots;
}

// The place of a label in its cell. Fails where more of one of its texts is seen when it has more room.
QRect placeOf(QLabel& label, int scale) {
    const QRect place = label.geometry();
    const QString before = label.text();
    for (const QString& text : textsOf(label)) {
        label.setText(text);
        label.resize(place.size());
        const qsizetype seen = ink(label);
        label.resize(place.size() * 2);
        EXPECT_EQ(ink(label), seen) << text.toStdString() << " is cut off at " << scale;
        EXPECT_GT(seen, 0) << text.toStdString();
    }
    label.setText(before);
    label.setGeometry(place);
    return place;
}

TEST_F(Labels, HaveRoomInACellAllAtOnce) {
    const int dots = qRound(display_.devicePixelRatioF());
    for (int scale = std::max(6, 10 / dots); scale <= 40 / dots; ++scale) {  // up to screens of 3840 x 2160
        scaleTo(scale);
        const QRect room{{}, ChartScale{scale}.cellFrame(CellIndex{0}).size()};
        std::map<std::string_view, QRect> places;
        for (const CellLabel& row : cellLabels()) {
            const QRect place = placeOf(*label(row.name), scale);
            EXPECT_TRUE(room.contains(place)) << row.name << " leaves its cell at " << scale;
            for (const auto& [other, taken] : places) {
                EXPECT_FALSE(place.intersects(taken)) << row.name << " meets " << other << " at " << scale;
            }
            places[row.name] = place;
        }
        EXPECT_EQ(places.size(), captionFields.size() + flagFields.size());
    }
}

TEST_F(Labels, StandWhereTheyAreStatedTo) {
    scaleTo(11);  // where a pixel is 15 twips
    const auto standsAt = [this](const char* name, int left, int top, int width = 0) {
        EXPECT_EQ(label(name)->pos(), QPoint(left / 15, top / 15)) << name;
        EXPECT_GE(label(name)->width(), width / 15) << name;
    };
    standsAt("lblEarthlyBranches", 60, 0);
    standsAt("lblZuoFu", 1080, 720);
    standsAt("lblHuaLu", 1875, 1920);
    standsAt("lblTianFu", 60, 1380, 600);
    standsAt("lblMajorStars", 60, 1605, 975);
    standsAt("lblPalace", 60, 1920);
    standsAt("lblBody", 2880, 1920);
    constexpr int columns[]{0, 0, 0, 0, 1, 2, 3, 3, 3, 3, 2, 1}, rows[]{3, 2, 1, 0, 0, 0, 0, 1, 2, 3, 3, 3};
    for (int cell = 0; cell < cellCount; ++cell) {
        const QRect frame{240 * columns[cell], 144 * rows[cell], 241, 145};
        EXPECT_EQ(display_.findChild<QWidget*>("Square(%1)"_q.arg(cell))->geometry(), frame) << cell;
        EXPECT_EQ(display_.findChild<QWidget*>("lblCover(%1)"_q.arg(cell))->geometry(), frame) << cell;
    }
}

TEST_F(Labels, CanBeReadOnALightChartEvenOnADarkDesktop) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette{QColor{40, 40, 40}});
    scaleTo(12);
    display_.show();
    int count = 0;
    for (const QLabel* label : display_.findChildren<QLabel*>()) {
        if (label->text().isEmpty() || !label->isVisible()) continue;
        ++count;
        const QImage ground = label->parentWidget()->grab().toImage();
        const QColor paper = ground.pixelColor(2, ground.height() / 2);  // left of all text
        const QColor ink = label->palette().color(label->foregroundRole());
        EXPECT_GE(look::contrast(paper, ink), 4.5) << label->objectName().toStdString();
    }
    EXPECT_GT(count, 100);
    const QColor blue = label("lblTianFu")->palette().color(QPalette::WindowText);
    const QColor green = label("lblMajorStars")->palette().color(QPalette::WindowText);
    EXPECT_TRUE(blue.blue() > 2 * blue.green() && green.green() > 2 * green.blue());
    QApplication::setPalette(before);
}

TEST(Look, MakesWhatIsSelectedLegible) {
    EXPECT_NEAR(look::contrast(QColor{0x76, 0x76, 0x76}, Qt::white), 4.54, 0.01);
    const std::pair<QColor, QColor> selections[]{{{53, 132, 228}, Qt::white},
                                                 {{0, 60, 160}, Qt::black},
                                                 {Qt::cyan, Qt::black},
                                                 {Qt::white, Qt::white}};
    for (const auto& [ground, letters] : selections) {
        QPalette desktop;
        desktop.setColor(QPalette::Highlight, ground);
        desktop.setColor(QPalette::HighlightedText, letters);
        for (const QColor& base : {QColor{Qt::white}, QColor{Qt::black}}) {
            desktop.setColor(QPalette::Base, base);
            const QPalette mended = look::legibleSelection(desktop).resolve(desktop);
            const QColor behind = mended.color(QPalette::Highlight);
            EXPECT_GE(look::contrast(behind, mended.color(QPalette::HighlightedText)), 4.5);
            EXPECT_EQ(behind == ground, ground == Qt::cyan) << "only that one is legible as it is";
        }
    }
}

}  // namespace
