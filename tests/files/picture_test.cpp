// The picture of the chart, from the screen through the converter, a module loaded at run time, to the file.

#include <cmath>

#include "app/start_rules.h"
#include "files/bmp2jpeg/bmp2jpeg.h"
#include "files/picture_export.h"
#include "form_driver.h"

namespace {

class SavedFile : public TemporaryFolder {};

// How near the picture in the file comes to the other, as far as that goes: the peak signal-to-noise ratio in
// decibels.
double likeness(const std::string& path, const QImage& other) {
    const QImage picture{QString::fromStdString(path)}, right = other.convertToFormat(QImage::Format_RGB888);
    const QImage left = picture.copy(other.rect()).convertToFormat(QImage::Format_RGB888);
    double error = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int i = 0; i < 3 * left.width(); ++i)
            error += std::pow(left.scanLine(y)[i] - right.scanLine(y)[i], 2);
    }
    return 10 * std::log10(255.0 * 255 * 3 * left.width() * left.height() / error);
}

// Thin strokes of pure colours on white, of an odd size, so that rows have padding.
QImage lettering() {
    QImage image{61, 37, QImage::Format_RGB32};
    image.fill(Qt::white);
    for (int x = 0; x < 61; x += 4) {
        for (int y = 0; y < 37; ++y)
            if (y % 9 > 1) image.setPixelColor(x, y, QColor::fromHsv(y / 9 * 90, 255, 200));
    }
    return image;
}

TEST_F(SavedFile, OfTheConverterIsASharpPictureOrTheOldOne) {
    const auto convert =
        reinterpret_cast<decltype(&BmpToJpeg)>(QLibrary::resolve(converterPath(), "BmpToJpeg"));
    ASSERT_NE(convert, nullptr);
    QBuffer buffer;
    lettering().save(&buffer, "BMP");
    const std::string good = buffer.data().toStdString(), bmp = folder_ + "/in.bmp",
                      jpeg = folder_ + "/out.jpg";
    write(jpeg, "old");
    write(bmp, good.substr(0, 60));
    EXPECT_EQ(convert(bmp.c_str(), jpeg.c_str(), 90), 0);
    write(bmp, good);
    EXPECT_EQ(convert(nullptr, jpeg.c_str(), 90), 0);
    EXPECT_EQ(convert(bmp.c_str(), "/none/x", 90), 0);
    EXPECT_EQ(read(jpeg), "old");
    EXPECT_EQ(convert(bmp.c_str(), jpeg.c_str(), 100), 1);
    EXPECT_GE(likeness(jpeg, lettering()), 45);
}

class Picture : public Program {
  protected:
    Picture() { showChart(); }

    QStringList save(const std::string& name) const {
        return messagesOf([] { click("cmdSavePicture"); }, folder_ + "/" + name);
    }
};

TEST_F(Picture, ShowsTheChartAsOnTheScreenWithoutFocusAndPointer) {
    auto* client = find("frmDisplay")->findChild<QScrollArea*>();
    QTest::mouseMove(find("frmMdi"), {2, 2});
    QTest::qWait(200);  // until all is painted
    const QImage screen = client->grab().toImage();
    find("lblCover(4)")->setFocus();
    QTest::mouseMove(find("lblCover(4)"));
    QTest::qWait(50);
    EXPECT_EQ(save("chart"), QStringList{});
    const QSize withoutHint = screen.size() - QSize{0, 40};  // which tells of the pointer, as it should
    EXPECT_GE(likeness(folder_ + "/chart.jpg", screen.copy({{}, withoutHint})), 45);
    find("frmMdi")->showNormal();
    find("frmMdi")->resize(500, 400);
    EXPECT_TRUE(QTest::qWaitFor([&] { return client->widget()->height() > client->height(); }));
    EXPECT_EQ(save("scrolled"), QStringList{});
    EXPECT_EQ(QImage{QString::fromStdString(folder_ + "/scrolled.jpg")}.size(), client->widget()->size());
}

TEST_F(Picture, OverwritesNothingAndLeavesNothingBeside) {
    write(folder_ + "/chart.bmp", "the person's own");
    const std::string longest = std::string(251, 'n') + ".jpg", counted = std::string(247, 'n') + "_001.jpg";
    for (const std::string& name : {std::string{"chart"}, std::string{"chart.png"}, longest, longest})
        EXPECT_EQ(save(name), QStringList{});
    messagesOf([] { click("cmdSavePicture"); });  // cancelled
    savePictureAs(QPixmap::fromImage(lettering()), QString::fromStdString(folder_ + "/broken"), "/none.dll",
                  nullptr);
    EXPECT_EQ(names(), (Names{"chart.bmp", "chart.jpg", "chart.png", longest, counted}));
    EXPECT_EQ(read(folder_ + "/chart.bmp"), "the person's own");
    EXPECT_TRUE(read(folder_ + "/chart.png").starts_with("\xFF\xD8"));
    for (int counter = 1001; counter <= 1999; ++counter)
        write(folder_ + "/chart_" + std::to_string(counter).substr(1) + ".jpg", "");
    EXPECT_EQ(save("chart"), QStringList{" UNABLE  TO  CREATE  NEW  FILEchart.jpg|critical|"
                                         "There are too many Copies of this file  chart.jpg"});
}

}  // namespace
