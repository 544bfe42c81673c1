// Takes a temporary file away again, even if the program is killed while it uses it.
#pragma once

#include <sys/types.h>

#include <string>

class LitterGuard {
  public:
    // For a file that does not exist yet. A child process watches over it from here on.
    explicit LitterGuard(std::string path);

    // Removes the file, if it was made.
    ~LitterGuard();
    LitterGuard(const LitterGuard&) = delete;
    LitterGuard& operator=(const LitterGuard&) = delete;

  private:
    std::string path_;
    int pipe_ = -1;
    pid_t watcher_ = -1;
};
