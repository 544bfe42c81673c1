// The picture of the chart: the converter as the program meets it, a module loaded at run time, and the whole
// way from the screen to the file.

#include <sys/stat.h>
#include <unistd.h>

#include <QBuffer>
#include <QLibrary>
#include <QScreen>
#include <QScrollArea>
#include <cmath>

#include "files/bmp2jpeg/bmp2jpeg.h"
#include "files/picture_export.h"
#include "form_driver.h"

namespace {

QString converter() { return QCoreApplication::applicationDirPath() + "/Bmp2Jpeg.dll"_q; }

// How near the picture in the file comes to the other: the peak signal-to-noise ratio in decibels.
double likeness(const std::string& path, const QImage& other) {
    const QImage left = QImage{QString::fromStdString(path)}.convertToFormat(QImage::Format_RGB888);
    const QImage right = other.convertToFormat(QImage::Format_RGB888);
    EXPECT_EQ(left.size(), right.size());
    if (left.size() != right.size()) return 0;
    double error = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int i = 0; i < 3 * left.width(); ++i)
            error += std::pow(left.scanLine(y)[i] - right.scanLine(y)[i], 2);
    }
    return 10 * std::log10(255.0 * 255 * 3 * left.width() * left.height() / error);
}

// Thin strokes of pure colours on white, like lettering, of an odd size, so that rows have padding.
QImage lettering() {
    constexpr QRgb inks[]{0xFFFFFFFF, 0xFFC80000, 0xFF000000, 0xFF005AC8, 0xFF008200, 0xFFFFD200};
    QImage image{61, 37, QImage::Format_RGB32};
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int stroke = (x * 7 + y * 3) / 9 % 11;
            image.setPixel(x, y, inks[stroke < 5 && y % 9 > 1 ? (stroke + y / 9) % 5 + 1 : 0]);
        }
    }
    return image;
}

std::string bmpOf(const QImage& image) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "BMP");
    return buffer.data().toStdString();
}

class Converter : public TemporaryFolder {
  protected:
    int convert(const std::string& bmp, int quality = 100) {
        write(bmp_, bmp);
        return call_(bmp_.c_str(), jpeg_.c_str(), quality);
    }

    decltype(&BmpToJpeg) call_ =
        reinterpret_cast<decltype(&BmpToJpeg)>(QLibrary::resolve(converter(), "BmpToJpeg"));
    std::string bmp_ = folder_ + "/in.bmp", jpeg_ = folder_ + "/out.jpg";
};

TEST_F(Converter, KeepsThePictureSharp) {
    QImage indexed = lettering().convertToFormat(QImage::Format_Indexed8);
    indexed.setColorCount(256);
    std::string fromTheTop = bmpOf(lettering().mirrored());
    fromTheTop.replace(22, 4, "\xDB\xFF\xFF\xFF");  // a height of -37
    for (const std::string& bmp : {bmpOf(lettering()), bmpOf(indexed), fromTheTop}) {
        EXPECT_EQ(convert(bmp), 1);
        EXPECT_GE(likeness(jpeg_, lettering()), 45);
    }
    const std::size_t best = read(jpeg_).size();
    EXPECT_EQ(convert(fromTheTop, 1), 1);
    EXPECT_LT(read(jpeg_).size(), best / 2);
}

TEST_F(Converter, LeavesTheOldPictureWhereItCannotMakeANewOne) {
    write(jpeg_, "old");
    const std::string good = bmpOf(lettering()), pipe = folder_ + "/pipe";
    for (std::size_t length = 0; length < good.size(); length += length < 80 ? 1 : 97) {
        EXPECT_EQ(convert(good.substr(0, length)), 0) << length;
    }
    for (const char* side : {"\0\0\0", "\x80\x3E\0", "\xFF\x7F\0", "\xFF\xFF\xFF\x7F", "\0\0\0\x80"}) {
        EXPECT_EQ(convert(std::string(good).replace(18, 8, std::string(side, 4) + std::string(side, 4))), 0);
    }
    write(bmp_, good);
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    ::alarm(20);  // in case the pipe is waited for
    for (const char* path :
         {folder_.c_str(), pipe.c_str(), "/none/x", "", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(call_(path, jpeg_.c_str(), 90), 0);
        EXPECT_EQ(call_(bmp_.c_str(), path, 90), 0);
    }
    ::alarm(0);
    EXPECT_EQ(read(jpeg_), "old");
    EXPECT_EQ(names(), (Names{"in.bmp", "out.jpg", "pipe"}));
}

class Picture : public Program {
  protected:
    Picture() { showChart(); }

    QStringList save(const char* name) const {
        return messagesOf([] { click("cmdSavePicture"_q); }, folder_ + "/" + name);
    }
};

TEST_F(Picture, ShowsTheClientAreaAsOnTheScreen) {
    auto* client = find("frmDisplay"_q)->findChild<QScrollArea*>();
    QTest::qWait(200);  // until all is painted
    const QPoint corner = client->mapToGlobal(QPoint{});
    QPixmap screen =
        client->screen()->grabWindow(0, corner.x(), corner.y(), client->width(), client->height());
    if (QGuiApplication::platformName() == "offscreen"_q) screen = client->grab();
    EXPECT_EQ(save("chart"), QStringList{});
    EXPECT_GE(likeness(folder_ + "/chart.jpg", screen.toImage()), 45);
}

TEST_F(Picture, OverwritesNothingAndLeavesNothingBeside) {
    write(folder_ + "/chart.bmp", "the person's own");
    for (const char* name : {"chart", "chart.jpg", "chart.bmp", "chart.png", "a.b.JPG"}) save(name);
    messagesOf([] { click("cmdSavePicture"_q); });  // cancelled
    EXPECT_EQ(names(),
              (Names{"chart.bmp", "chart.jpg", "chart.png", "chart_001.jpg", "chart_002.jpg", "a.b.JPG"}));
    EXPECT_EQ(read(folder_ + "/chart.bmp"), "the person's own");
    EXPECT_TRUE(read(folder_ + "/chart.png").starts_with("\xFF\xD8"));
    for (int counter = 3; counter <= 999; ++counter) {
        write(folder_ + "/chart_" + std::to_string(1000 + counter).substr(1) + ".jpg", "");
    }
    EXPECT_EQ(save("chart"), QStringList{" UNABLE  TO  CREATE  NEW  FILEchart.jpg|critical|"
                                         "There are too many Copies of this file  chart.jpg"_q});
}

TEST_F(Picture, LeavesNothingWhereAStepFails) {
    const auto exportBy = [&](const QString& path, const std::string& name) {
        messagesOf([&] { exportPicture(QPixmap::fromImage(lettering()), path, nullptr); },
                   folder_ + "/" + name);
        return names();
    };
    EXPECT_EQ(exportBy("/none/Bmp2Jpeg.dll"_q, "chart"), Names{});
    EXPECT_EQ(exportBy(converter(), std::string(250, 'n') + ".x"), Names{})
        << "too long for the bitmap's name";
    EXPECT_EQ(exportBy(converter(), "chart"), Names{"chart.jpg"});
}

}  // namespace
