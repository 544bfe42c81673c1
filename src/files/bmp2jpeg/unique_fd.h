// Owns a file descriptor and closes it at the end of its scope.

#pragma once

#include <unistd.h>

#include <utility>

namespace bmp2jpeg {

class UniqueFd {
  public:
    explicit UniqueFd(int fd) : fd_(fd) {}
    UniqueFd(const UniqueFd&) = delete;
    UniqueFd& operator=(const UniqueFd&) = delete;
    ~UniqueFd() { close(); }

    bool valid() const { return fd_ >= 0; }
    int get() const { return fd_; }

    // Closes early, for callers to whom it matters: some file systems report a failed write only here.
    bool close() { return fd_ < 0 || ::close(std::exchange(fd_, -1)) == 0; }

  private:
    int fd_;
};

}  // namespace bmp2jpeg
