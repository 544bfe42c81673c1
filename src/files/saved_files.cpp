#include "files/saved_files.h"

#include <QFileInfo>
#include <QSaveFile>

std::optional<std::string> readFile(const QString& path, std::size_t most) {
    QFile file{path};
    if (!QFileInfo{path}.isFile() || !file.open(QIODevice::ReadOnly)) return std::nullopt;
    const QByteArray bytes = file.read(static_cast<qint64>(most));
    if (file.error() != QFileDevice::NoError) return std::nullopt;
    return bytes.toStdString();
}

bool writeFile(const QString& path, std::string_view bytes) {
    QSaveFile file{path};
    file.setDirectWriteFallback(true);
    const auto size = static_cast<qint64>(bytes.size());
    return file.open(QIODevice::WriteOnly) && file.write(bytes.data(), size) == size && file.flush() &&
           file.commit();
}
