#include "files/whole_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace {

constexpr mode_t ordinaryMode = 0666;  // less what the user's mask takes away
constexpr int attempts = 1000;

// The folder of the path; a bare file name lies in the current one.
std::filesystem::path folderOf(const std::filesystem::path& path) {
    return path.has_parent_path() ? path.parent_path() : std::filesystem::path{"."};
}

// Short, so that it fits wherever the file's own name does not leave room, and hidden.
std::string temporaryName(const std::filesystem::path& path, int attempt) {
    const std::string name = ".pl" + std::to_string(::getpid()) + "-" + std::to_string(attempt) + ".tmp";
    return (folderOf(path) / name).string();
}

}  // namespace

// A link is followed, so that the file it points to is the one replaced, as an ordinary save would have it.
WholeFile::WholeFile(const std::filesystem::path& path) : path_(path) {
    std::error_code error;
    if (std::filesystem::is_symlink(path, error)) {
        const auto target = std::filesystem::weakly_canonical(path, error);
        if (!error) path_ = target;
    }
    sound_ = openNameless() || openNamed();
}

// What is left under the temporary name goes with the guard, even if the program is killed.
WholeFile::~WholeFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
}

bool WholeFile::openNameless() {
#ifdef O_TMPFILE
    descriptor_ = ::open(folderOf(path_).c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, ordinaryMode);
#endif
    return descriptor_ >= 0;
}

void WholeFile::chooseTemporaryName() {
    std::error_code error;
    int attempt = 0;
    do {
        temporary_ = temporaryName(path_, attempt++);
    } while (attempt < attempts &&
             std::filesystem::exists(std::filesystem::symlink_status(temporary_, error)));
    guard_.emplace(temporary_);
}

bool WholeFile::openNamed() {
    chooseTemporaryName();
    descriptor_ = ::open(temporary_.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, ordinaryMode);
    return descriptor_ >= 0;
}

bool WholeFile::write(std::string_view bytes) {
    while (sound_ && !bytes.empty()) {
        const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
        if (written > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (written == 0 || errno != EINTR) {
            sound_ = false;
        }
    }
    return sound_;
}

bool WholeFile::nameTemporarily() {
    chooseTemporaryName();
    const std::string self = "/proc/self/fd/" + std::to_string(descriptor_);
    return ::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, temporary_.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

bool WholeFile::commit() {
    // What is put in the place of another file must be on the disk before, or a power cut could take both.
    if (!sound_ || ::fdatasync(descriptor_) != 0) return false;
    sound_ = false;
    struct stat previous {};
    const bool replaces = ::stat(path_.c_str(), &previous) == 0;
    if (replaces && (!S_ISREG(previous.st_mode) || ::fchmod(descriptor_, previous.st_mode & 07777) != 0))
        return false;
    if (!replaces && temporary_.empty()) {
        const std::string self = "/proc/self/fd/" + std::to_string(descriptor_);
        if (::linkat(AT_FDCWD, self.c_str(), AT_FDCWD, path_.c_str(), AT_SYMLINK_FOLLOW) == 0) return true;
    }
    if (temporary_.empty() && !nameTemporarily()) return false;
    return ::rename(temporary_.c_str(), path_.c_str()) == 0;
}
