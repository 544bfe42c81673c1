// The rules of the start: one running program per user, and no start without the picture converter.
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

// The picture converter in the application's own folder.
QString converterPath();

// Whether the converter is there, told by its name alone; if not, says so to the person.
bool requiredFileIsPresent();
