// One running program per user.
#pragma once

#include <QLockFile>
#include <memory>

class SingleInstance {
  public:
    // Tries to become the one. A lock that a killed program left behind does not count.
    SingleInstance();

    // Whether another program of this user is running. Where nothing can be locked at all, nothing is known
    // of another one, and the answer is no.
    bool anotherIsRunning() const { return anotherIsRunning_; }

  private:
    std::unique_ptr<QLockFile> lock_;
    bool anotherIsRunning_ = false;
};
