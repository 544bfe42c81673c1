// The rules of the start: one running program for each user, and none without the picture converter.
#pragma once

#include <QLockFile>
#include <memory>

class SingleInstance {
  public:
    // Tries to take the lock. One that a killed program left behind does not count.
    SingleInstance();

    // Whether another program of this user holds the lock. Where nothing can be locked at all, the answer is
    // no.
    bool anotherIsRunning() const { return anotherIsRunning_; }

  private:
    std::unique_ptr<QLockFile> lock_;
    bool anotherIsRunning_ = false;
};

// The picture converter in the application's own folder.
QString converterPath();

// Whether a file of that name is there, whatever is in it; if not, shows a message.
bool requiredFileIsPresent();
