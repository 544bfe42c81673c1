#include "app/single_instance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <cerrno>

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

// The kernel gives the lock back whenever and however the process ends, so that none is ever stale; the file
// itself stays.
SingleInstance::SingleInstance() {
    for (const QString& path : lockPaths()) {
        lock_ = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
        if (lock_ < 0) continue;
        if (::flock(lock_, LOCK_EX | LOCK_NB) == 0) return;
        anotherIsRunning_ = errno == EWOULDBLOCK;
        if (anotherIsRunning_) return;
        ::close(lock_);
        lock_ = -1;
    }
}

SingleInstance::~SingleInstance() {
    if (lock_ >= 0) ::close(lock_);
}
