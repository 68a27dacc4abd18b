#pragma once

// Whether another Orravane of this user is running.

#include <QLockFile>

class SingleInstance {
public:
    SingleInstance();

    /// True when another running process holds the lock. A lock that a crash left behind
    /// does not count, nor does a place where no lock can be written.
    bool AnotherIsRunning();

private:
    QLockFile lock_;
};
