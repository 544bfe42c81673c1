// Files as they come to the disk: chart files, and pictures from the screen through the converter's module.

#include <cmath>

#include "files/picture_export.h"
#include "files/saved_files.h"
#include "form_driver.h"

namespace {

using SavedFile = TemporaryFolder;

TEST_F(SavedFile, LeavesWhatWasThereWhereverTheDiskIsFullAndIsNoDevice) {
    const std::string bytes = chartFileBytes({u"JOHN SMITH", 1985, "March", 5}), path = in("chart.plf");
    write("chart.plf", "old");
    for (std::size_t room = 0; room <= bytes.size(); ++room) {
        bool saved = false;
        withRoomFor(room, [&] { saved = writeFile(path.c_str(), bytes); });
        EXPECT_EQ(saved, room == bytes.size()) << room;
        EXPECT_EQ(read("chart.plf"), saved ? bytes : "old") << room;
        EXPECT_EQ(names(), QStringList{"chart.plf"}) << room;
    }
    std::filesystem::permissions(path, std::filesystem::perms::all);
    inClosedFolder(folder_, [&] { EXPECT_TRUE(writeFile(path.c_str(), "new")) << "in its place"; });
    EXPECT_EQ(read("chart.plf"), "new");
    for (const char* device : {"/proc/self/mem", "/dev/zero"}) EXPECT_FALSE(readFile(device, 9)) << device;
}

// How near the picture in the file comes to the other: the peak signal-to-noise ratio in decibels.
double likeness(const std::string& path, const QImage& other) {
    const QImage right = other.convertToFormat(QImage::Format_RGB32);
    const QImage left = QImage{path.c_str()}.copy(other.rect()).convertToFormat(QImage::Format_RGB32);
    const int pixels = left.width() * left.height();
    double error = 0;
    for (int i = 0; i < 4 * pixels; ++i) error += std::pow(left.constBits()[i] - right.constBits()[i], 2);
    return 10 * std::log10(255.0 * 255 * 3 * pixels / error);
}

struct Picture : Program {
    Picture() { showChart(); }

    QString save(const std::string& name) const {
        return messagesOf([] { choose("frmDisplay", "mnuSavejpg"); }, {in(name)});
    }
};

TEST_F(Picture, ShowsTheChartAsOnTheScreenWithoutFocusAndPointer) {
    auto* client = find("frmDisplay")->findChild<QScrollArea*>();
    QWidget *frame = find("frmMdi"), *cell = find("lblCover(4)");
    const auto shownWithPointerAt = [&](QWidget* widget) {
        QTest::mouseMove(widget, {2, 2});
        await([&] { return cell->underMouse() == (widget == cell); });
        return client->grab({{}, client->size() - QSize{0, 40}}).toImage();  // without the hint
    };
    const QImage plain = shownWithPointerAt(frame);
    cell->setFocus();
    const QImage focused = shownWithPointerAt(frame);
    EXPECT_NE(focused, plain);
    EXPECT_NE(shownWithPointerAt(cell), focused);
    EXPECT_EQ(save("chart"), "");
    EXPECT_GE(likeness(in("chart.jpg"), plain), 45);
    EXPECT_EQ(shownWithPointerAt(frame), focused);
    frame->showNormal();
    await([&] { return frame->width() < frame->screen()->size().width() * 9 / 10; });
    const QWidget& whole = *client->widget();
    for (const auto& [size, name] : {std::pair{QSize{500, 700}, "across.jpg"}, {{1000, 400}, "down.jpg"}}) {
        frame->resize(size);
        await([&, size = size] { return frame->size() == size; });
        EXPECT_NE(whole.width() > client->width(), whole.height() > client->height()) << name;
        EXPECT_EQ(save(name), "");
        EXPECT_EQ(QImage(in(name).c_str()).size(), whole.size()) << name;
    }
}

TEST_F(Picture, OverwritesNothingAndLeavesNothingBeside) {
    write("chart.bmp", "the person's own");
    std::filesystem::create_symlink("/none/x", in("link.jpg"));
    const std::string longest = std::string(251, 'n') + ".jpg", counted = std::string(247, 'n') + "_001.jpg";
    for (const std::string& name : {std::string{"chart"}, {"chart.png"}, {"link"}, longest, longest})
        EXPECT_EQ(save(name), "");
    const auto beside = [] { return QDir{QCoreApplication::applicationDirPath()}.entryList(); };
    const QStringList before = beside();
    withOne(clicking("cmdSavePicture"));  // cancelled
    EXPECT_EQ(beside(), before);
    const QString closed = "critical|Nothing can be saved in this folder.|stays";
    inClosedFolder(folder_, [&] { EXPECT_EQ(save("chart.jpg"), closed); });
    savePictureAs(QPixmap{9, 9}, in("broken").c_str(), "/none.dll", nullptr);
    EXPECT_EQ(names().join(" ").toStdString(),
              "chart.bmp chart.jpg chart.png link_001.jpg " + counted + " " + longest);
    EXPECT_EQ(read("chart.bmp"), "the person's own");
    EXPECT_TRUE(read("chart.png").starts_with("\xFF\xD8"));
    for (int counter = 1001; counter <= 1999; ++counter)
        write("chart_" + std::to_string(counter).substr(1) + ".jpg", "");
    EXPECT_EQ(save("chart"),
              " UNABLE  TO  CREATE  NEW  FILEchart.jpg|critical|"
              "There are too many Copies of this file  chart.jpg");
}

}  // namespace
