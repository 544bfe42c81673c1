#include "files/picture_export.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <QScopeGuard>
#include <QTemporaryFile>
#include <memory>

#include "files/bmp2jpeg/bmp2jpeg.h"
#include "files/picture_name.h"
#include "style/message.h"

namespace {

constexpr int quality = 100;

std::string encoded(const QString& path) { return QFile::encodeName(path).toStdString(); }
QString decoded(const std::string& path) { return QFile::decodeName(QByteArray::fromStdString(path)); }

// A dangling symbolic link is taken, too.
bool isTaken(const std::string& path) {
    const QFileInfo file{decoded(path)};
    return file.exists() || file.isSymLink();
}

PictureName nameFor(const QString& chosenPath) {
    const QFileInfo chosen{chosenPath};
    // With native separators, so that the "//" before a network share on Windows stays.
    return uniquePictureName(
        encoded(QDir::toNativeSeparators(chosen.path())), encoded(chosen.fileName()),
        {encoded(QCoreApplication::applicationDirPath()), isTaken,
         QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddhhmmsszzz")).toStdString()});
}

// Creates the bitmap beside the picture; under a temporary name if its own is taken or is the picture's.
std::unique_ptr<QFile> newBitmap(const PictureName& picture) {
    const std::string path = bitmapPathFor(picture.path());
    auto bitmap = std::make_unique<QFile>(decoded(path));
    const bool made = path != picture.path() && bitmap->open(QIODevice::WriteOnly | QIODevice::NewOnly);
    if (made) return bitmap;
    auto other = std::make_unique<QTemporaryFile>(decoded(picture.folder + "XXXXXX.bmp"));
    return other->open() ? std::move(other) : nullptr;
}

void convert(const QString& converter, const QString& bitmapPath, const std::string& picturePath) {
    const auto resolved = QLibrary::resolve(converter, "BmpToJpeg");
    const auto bmpToJpeg = reinterpret_cast<decltype(&BmpToJpeg)>(resolved);
    if (bmpToJpeg != nullptr) bmpToJpeg(encoded(bitmapPath).c_str(), picturePath.c_str(), quality);
}

}  // namespace

void savePictureAs(const QPixmap& picture, const QString& chosenPath, const QString& converter,
                   QWidget* parent) {
    const PictureName name = nameFor(chosenPath);
    if (name.tooManyCopies)
        showMessage(parent, QMessageBox::Critical,
                    QStringLiteral("There are too many Copies of this file  ") + decoded(name.name),
                    QStringLiteral(" UNABLE  TO  CREATE  NEW  FILE") + decoded(name.name));
    const std::unique_ptr<QFile> bitmap = newBitmap(name);
    if (bitmap == nullptr) return;
    const auto guard = qScopeGuard([&bitmap] { bitmap->remove(); });
    const bool written = picture.toImage().save(bitmap.get(), "BMP") && bitmap->flush();
    if (written) convert(converter, bitmap->fileName(), name.path());
}
