// Files as they come to the disk: chart files, and the picture of the chart, from the screen through the
// converter, a module loaded at run time, to the file.

#include <sys/resource.h>

#include <cmath>
#include <csignal>

#include "app/start_rules.h"
#include "files/bmp2jpeg/bmp2jpeg.h"
#include "files/chart_file.h"
#include "files/picture_export.h"
#include "files/saved_files.h"
#include "form_driver.h"

namespace {

class SavedFile : public TemporaryFolder {};

TEST_F(SavedFile, LeavesWhatWasThereWhereverTheDiskIsFull) {
    const std::string bytes = chartFileBytes({u"JOHN SMITH", 1985, "March", 5}),
                      path = folder_ + "/chart.plf";
    write(path, "old");
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    for (std::size_t room = 0; room <= bytes.size(); ++room) {
        const rlimit limit{room, before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const bool saved = writeFile(path.c_str(), bytes);
        ::setrlimit(RLIMIT_FSIZE, &before);
        EXPECT_EQ(saved, room == bytes.size()) << room;
        EXPECT_EQ(read(path), saved ? bytes : "old") << room;
        EXPECT_EQ(names(), Names{"chart.plf"}) << room;
    }
    std::filesystem::permissions(path, std::filesystem::perms::all);
    inClosedFolder([&] { EXPECT_TRUE(writeFile(path.c_str(), "new")) << "in its place"; });
    EXPECT_EQ(read(path), "new");
}

// How near the picture in the file comes to the other, as far as that goes: the peak signal-to-noise ratio in
// decibels.
double likeness(const std::string& path, const QImage& other) {
    const QImage right = other.convertToFormat(QImage::Format_RGB888);
    const QImage left = QImage{path.c_str()}.copy(other.rect()).convertToFormat(QImage::Format_RGB888);
    double error = 0;
    for (int y = 0; y < left.height(); ++y)
        for (int i = 0; i < 3 * left.width(); ++i)
            error += std::pow(left.scanLine(y)[i] - right.scanLine(y)[i], 2);
    return 10 * std::log10(255.0 * 255 * 3 * left.width() * left.height() / error);
}

// Thin strokes of pure colours on white, of an odd size, so that rows have padding.
QImage lettering() {
    QImage image{61, 37, QImage::Format_RGB32};
    image.fill(Qt::white);
    for (int x = 0; x < 61; x += 4)
        for (int y = 2; y < 37; y += 1 + y % 9 / 8 * 2)
            image.setPixelColor(x, y, QColor::fromHsv(y / 9 * 90, 255, 200));
    return image;
}

TEST_F(SavedFile, OfTheConverterIsASharpPictureOrTheOldOne) {
    const auto convert =
        reinterpret_cast<decltype(&BmpToJpeg)>(QLibrary::resolve(converterPath(), "BmpToJpeg"));
    ASSERT_NE(convert, nullptr);
    const std::string bmp = folder_ + "/in.bmp", jpeg = folder_ + "/out.jpg";
    write(jpeg, "old");
    lettering().save(bmp.c_str());
    const std::string good = read(bmp);
    EXPECT_EQ(convert(nullptr, jpeg.c_str(), 90), 0);
    EXPECT_EQ(convert(bmp.c_str(), "/none/x", 90), 0);
    write(bmp, good.substr(0, 60));
    EXPECT_EQ(convert(bmp.c_str(), jpeg.c_str(), 90), 0);
    EXPECT_EQ(read(jpeg), "old");
    write(bmp, good);
    EXPECT_EQ(convert(bmp.c_str(), jpeg.c_str(), 100), 1);
    EXPECT_GE(likeness(jpeg, lettering()), 45);
}

class Picture : public Program {
  protected:
    Picture() { showChart(); }

    // By the menu, so that the focus stays where it is.
    QStringList save(const std::string& name) const {
        return messagesOf([] { choose("frmDisplay", "mnuSavejpg"); }, {folder_ + "/" + name});
    }
};

TEST_F(Picture, ShowsTheChartAsOnTheScreenWithoutFocusAndPointer) {
    auto* client = find("frmDisplay")->findChild<QScrollArea*>();
    const auto shownWithPointerAt = [client](QWidget* widget) {
        QTest::mouseMove(widget, {2, 2});
        QTest::qWait(200);  // until all is painted
        const QSize withoutHint = client->size() - QSize{0, 40};
        return client->grab({{}, withoutHint}).toImage();
    };
    const QImage plain = shownWithPointerAt(find("frmMdi"));
    find("lblCover(4)")->setFocus();
    const QImage focused = shownWithPointerAt(find("frmMdi"));
    EXPECT_NE(focused, plain);
    EXPECT_NE(shownWithPointerAt(find("lblCover(4)")), focused);
    EXPECT_EQ(save("chart"), QStringList{});
    EXPECT_GE(likeness(folder_ + "/chart.jpg", plain), 45);
    EXPECT_EQ(shownWithPointerAt(find("frmMdi")), focused);
    find("frmMdi")->showNormal();
    for (const QSize& size : {QSize{500, 700}, {900, 400}}) {
        find("frmMdi")->resize(size);
        const QSize whole = client->widget()->size();
        const auto scrollsOneWay = [&] {
            return (whole.height() > client->height()) != (whole.width() > client->width());
        };
        EXPECT_TRUE(QTest::qWaitFor(scrollsOneWay));
        EXPECT_EQ(save(size.width() == 500 ? "across" : "down"), QStringList{});
        EXPECT_EQ(QImage((folder_ + (size.width() == 500 ? "/across.jpg" : "/down.jpg")).c_str()).size(),
                  whole);
    }
}

TEST_F(Picture, OverwritesNothingAndLeavesNothingBeside) {
    write(folder_ + "/chart.bmp", "the person's own");
    std::string longest(251, 'n'), counted(247, 'n');
    longest += ".jpg";
    counted += "_001.jpg";
    for (const std::string& name : {std::string{"chart"}, std::string{"chart.png"}, longest, longest})
        EXPECT_EQ(save(name), QStringList{});
    messagesOf([] { click("cmdSavePicture"); });  // cancelled
    const QStringList closed{"Palace Lantern Message|critical|Nothing can be saved in this folder.", "stays"};
    inClosedFolder([&] { EXPECT_EQ(save("chart.jpg"), closed); });
    savePictureAs(QPixmap::fromImage(lettering()), (folder_ + "/broken").c_str(), "/none.dll", nullptr);
    EXPECT_EQ(names(), (Names{"chart.bmp", "chart.jpg", "chart.png", longest, counted}));
    EXPECT_EQ(read(folder_ + "/chart.bmp"), "the person's own");
    EXPECT_TRUE(read(folder_ + "/chart.png").starts_with("\xFF\xD8"));
    for (int counter = 1001; counter <= 1999; ++counter)
        write(folder_ + "/chart_" + std::to_string(counter).substr(1) + ".jpg", "");
    EXPECT_EQ(save("chart"), QStringList{" UNABLE  TO  CREATE  NEW  FILEchart.jpg|critical|"
                                         "There are too many Copies of this file  chart.jpg"});
}

}  // namespace
