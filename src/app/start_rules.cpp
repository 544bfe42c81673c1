#include "app/start_rules.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "style/message.h"

namespace {

// The runtime folder is the user's own; the temporary one is shared, so the name tells the user there.
QStringList lockPaths() {
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    QStringList paths;
    if (!runtime.isEmpty()) paths += QDir{runtime}.filePath(QStringLiteral("palace-lantern.lock"));
    paths += QDir::temp().filePath(QStringLiteral("palace-lantern-%1.lock").arg(QDir::home().dirName()));
    return paths;
}

}  // namespace

SingleInstance::SingleInstance() {
    for (const QString& path : lockPaths()) {
        lock_ = std::make_unique<QLockFile>(path);
        if (lock_->tryLock()) return;
        anotherIsRunning_ = lock_->error() == QLockFile::LockFailedError;
        if (anotherIsRunning_) return;
    }
}

QString converterPath() {
    return QDir{QCoreApplication::applicationDirPath()}.filePath(QStringLiteral("Bmp2Jpeg.dll"));
}

bool requiredFileIsPresent() {
    if (QFileInfo{converterPath()}.isFile()) return true;
    showMessage(nullptr, QMessageBox::Critical,
                QStringLiteral("Required File Is Missing\nPlease Reinstall Software"));
    return false;
}
