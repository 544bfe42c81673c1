// One running program per user.
#pragma once

class SingleInstance {
  public:
    // Tries to become the one. A lock that a killed program left behind does not count.
    SingleInstance();
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    // Whether another program of this user is running. Where nothing can be locked at all, nothing is known
    // of another one, and the answer is no.
    bool anotherIsRunning() const { return anotherIsRunning_; }

  private:
    int lock_ = -1;  // an open file, locked for as long as the process lives
    bool anotherIsRunning_ = false;
};
