#include "files/picture_export.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QImage>
#include <QLibrary>
#include <filesystem>

#include "files/file_dialogs.h"
#include "files/litter_guard.h"
#include "files/picture_name.h"
#include "style/message.h"

namespace {

constexpr int quality = 100;

// A link that leads nowhere is a name that is taken, too.
bool isTaken(const std::string& path) {
    std::error_code error;
    return std::filesystem::exists(std::filesystem::symlink_status(path, error));
}

ClockTime localTime() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second(), time.msec()};
}

PictureSurroundings surroundings() {
    return {QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString(), isTaken, localTime};
}

PictureName nameFor(const std::string& chosenPath) {
    const auto slash = chosenPath.rfind('/');
    const bool bare = slash == std::string::npos;
    return uniquePictureName(bare ? std::string{} : chosenPath.substr(0, slash + 1),
                             bare ? chosenPath : chosenPath.substr(slash + 1), surroundings());
}

void tellTooManyCopies(const std::string& name, QWidget* parent) {
    const QString fileName = QFile::decodeName(QByteArray::fromStdString(name));
    showMessage(parent, QMessageBox::Critical,
                QStringLiteral("There are too many Copies of this file  ") + fileName,
                QStringLiteral(" UNABLE  TO  CREATE  NEW  FILE") + fileName);
}

// A name for the temporary bitmap that is neither the picture's nor that of any file that is there.
std::string freeBitmapPath(const std::string& picturePath) {
    const std::string first = bitmapPathFor(picturePath);
    std::string candidate = first;
    for (int counter = 1; candidate == picturePath || isTaken(candidate); ++counter) {
        candidate = first + "-" + std::to_string(counter) + ".bmp";
    }
    return candidate;
}

bool writeBitmap(const QImage& image, const std::string& path) {
    QFile file{QFile::decodeName(QByteArray::fromStdString(path))};
    return file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && image.save(&file, "BMP") && file.flush();
}

void convert(const QString& converter, const std::string& bitmapPath, const std::string& picturePath) {
    using BmpToJpeg = int (*)(const char*, const char*, int);
    QLibrary library{converter};
    const auto bmpToJpeg = reinterpret_cast<BmpToJpeg>(library.resolve("BmpToJpeg"));
    if (bmpToJpeg != nullptr) bmpToJpeg(bitmapPath.c_str(), picturePath.c_str(), quality);
}

}  // namespace

void exportPicture(const QPixmap& picture, const QString& converter, QWidget* parent) {
    const QString chosen = askForPictureName(parent);
    if (!chosen.isEmpty()) savePictureAs(picture, chosen, converter, parent);
}

void savePictureAs(const QPixmap& picture, const QString& chosenPath, const QString& converter,
                   QWidget* parent) {
    const PictureName name = nameFor(QFile::encodeName(chosenPath).toStdString());
    if (name.tooManyCopies) tellTooManyCopies(name.name, parent);
    const std::string bitmapPath = freeBitmapPath(name.path());
    const LitterGuard guard{bitmapPath};
    if (writeBitmap(picture.toImage(), bitmapPath)) convert(converter, bitmapPath, name.path());
}
