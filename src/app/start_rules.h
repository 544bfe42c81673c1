// The rules at the start: one instance for each user, and none without the picture converter.
#pragma once

#include <QLockFile>
#include <memory>

class SingleInstance {
  public:
    // Tries to take the lock; a stale one, left by a killed process, is replaced.
    SingleInstance();

    // Whether another instance of this user holds the lock; false where no lock file can be created.
    bool anotherIsRunning() const { return anotherIsRunning_; }

  private:
    std::unique_ptr<QLockFile> lock_;
    bool anotherIsRunning_ = false;
};

// The path of the picture converter, in the folder of the program.
QString converterPath();

// Whether the picture converter's file exists, whatever is in it; if not, shows a message.
bool requiredFileIsPresent();
