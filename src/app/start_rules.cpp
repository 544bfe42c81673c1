#include "app/start_rules.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "style/message.h"

namespace {

// In folders of this user alone, so that nobody else can hold the lock. QStandardPaths only returns a runtime
// folder that the user owns; on Windows, which has none, it returns the home folder.
QStringList lockPaths() {
    QStringList paths;
    for (const auto place : {QStandardPaths::RuntimeLocation, QStandardPaths::AppLocalDataLocation}) {
        const QString folder = QStandardPaths::writableLocation(place);
        if (!folder.isEmpty() && folder != QDir::homePath() && QDir{}.mkpath(folder))
            paths += QDir{folder}.filePath(QStringLiteral("palace-lantern.lock"));
    }
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
