#pragma once

// Whether another Orravane of this user is running on this machine.

#include "shell/file_lock.h"

#include <vector>

class SingleInstance {
public:
    /// True when another one is running. Otherwise this object is from now on the running
    /// one, until it is destroyed or the process ends in whatever way. Programs that the
    /// process has started do not count. Where no file at all can be locked, nobody can
    /// tell, and the answer is false.
    bool AnotherIsRunning();

private:
    std::vector<FileLock> locks_;
};
