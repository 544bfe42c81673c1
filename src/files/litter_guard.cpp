#include "files/litter_guard.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace {

// In the watcher, which may only do what is safe after a fork: wait until the other end of the pipe is
// closed. A byte before that says that the program has tidied up itself; the end without one, that it is
// gone.
[[noreturn]] void watch(int pipe, const char* path) {
    ::setsid();
    sigset_t all{};
    ::sigfillset(&all);
    ::sigprocmask(SIG_BLOCK, &all, nullptr);
    char tidied = 0;
    ssize_t count = 0;
    do {
        count = ::read(pipe, &tidied, 1);
    } while (count < 0 && errno == EINTR);
    if (count == 0) ::unlink(path);
    ::_exit(0);
}

}  // namespace

LitterGuard::LitterGuard(std::string path) : path_(std::move(path)) {
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return;
    watcher_ = ::fork();
    if (watcher_ == 0) {
        ::close(ends[1]);
        watch(ends[0], path_.c_str());
    }
    ::close(ends[0]);
    pipe_ = ends[1];
}

LitterGuard::~LitterGuard() {
    ::unlink(path_.c_str());
    if (pipe_ < 0) return;
    const char tidied = 1;
    while (::send(pipe_, &tidied, 1, MSG_NOSIGNAL) < 0 && errno == EINTR) {
    }
    ::close(pipe_);
    if (watcher_ > 0) ::waitpid(watcher_, nullptr, 0);
}
