#include "app/start_rules.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "style/message.h"
#include "style/platform.h"

// The lock file is in a folder of this user alone. On Windows, QStandardPaths returns the home folder as the
// runtime folder, where no such file belongs.
SingleInstance::SingleInstance() {
    for (const auto place : {QStandardPaths::RuntimeLocation, QStandardPaths::AppLocalDataLocation}) {
        const QString folder = QStandardPaths::writableLocation(place);
        const bool isHome = isWindows() && place == QStandardPaths::RuntimeLocation;
        if (isHome || folder.isEmpty() || !QDir{}.mkpath(folder)) continue;
        lock_ = std::make_unique<QLockFile>(QDir{folder}.filePath(QStringLiteral("palace-lantern.lock")));
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
