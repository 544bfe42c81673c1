#include "app/single_instance.h"

#include <unistd.h>

#include <QDir>
#include <QStandardPaths>

namespace {

// The runtime folder is the user's own; the temporary one is shared, so the name tells the user there.
QStringList lockPaths() {
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    QStringList paths;
    if (!runtime.isEmpty()) paths += QDir{runtime}.filePath(QStringLiteral("palace-lantern.lock"));
    paths += QDir::temp().filePath(QStringLiteral("palace-lantern-%1.lock").arg(::getuid()));
    return paths;
}

}  // namespace

SingleInstance::SingleInstance() {
    for (const QString& path : lockPaths()) {
        lock_ = std::make_unique<QLockFile>(path);
        lock_->setStaleLockTime(0);  // only a program that is gone leaves a stale lock, however old it is
        if (lock_->tryLock(0)) return;
        if (lock_->error() == QLockFile::LockFailedError) {
            anotherIsRunning_ = true;
            return;
        }
    }
}
