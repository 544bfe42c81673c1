#include "files/litter_guard.h"

#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace {

// Waits until the other end of its standard input is closed. A line before that says that the program has
// tidied up itself; the end without one, that it is gone.
constexpr auto watch = "read -r tidied || exec rm -f -- \"$0\"";

// Starts the watcher in a session of its own, out of reach of what ends the program. Not a fork: that would
// copy the whole program's memory maps.
pid_t startWatcher(int pipe, const std::string& path) {
    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    sigset_t all{};
    ::sigfillset(&all);
    ::posix_spawn_file_actions_init(&files);
    ::posix_spawn_file_actions_adddup2(&files, pipe, STDIN_FILENO);
    ::posix_spawnattr_init(&attributes);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK);
    ::posix_spawnattr_setsigmask(&attributes, &all);
    std::string shell = "sh", option = "-c", script = watch, file = path;
    char* arguments[] = {shell.data(), option.data(), script.data(), file.data(), nullptr};
    pid_t watcher = -1;
    if (::posix_spawn(&watcher, "/bin/sh", &files, &attributes, arguments, environ) != 0) watcher = -1;
    ::posix_spawnattr_destroy(&attributes);
    ::posix_spawn_file_actions_destroy(&files);
    return watcher;
}

}  // namespace

LitterGuard::LitterGuard(std::string path) : path_(std::move(path)) {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return;
    watcher_ = startWatcher(ends[0], path_);
    ::close(ends[0]);
    pipe_ = ends[1];
}

LitterGuard::~LitterGuard() {
    ::unlink(path_.c_str());
    if (pipe_ < 0) return;
    const char tidied = '\n';
    while (::send(pipe_, &tidied, 1, MSG_NOSIGNAL) < 0 && errno == EINTR) {
    }
    ::close(pipe_);
    if (watcher_ > 0) ::waitpid(watcher_, nullptr, 0);
}
