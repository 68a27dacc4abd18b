#pragma once

// A lock that the system drops with the process that holds it, however that process ends.
// One implementation for each kind of system.

#include <QString>

#include <utility>

class FileLock {
public:
    enum class Outcome {
        Taken,         ///< this object holds the lock, until it is destroyed
        HeldByAnother, ///< another object holds it, in whatever process
        Impossible,    ///< there is no such file that this user could lock
    };
    enum class IfMissing { Create, LeaveMissing };

    FileLock() = default;
    FileLock(FileLock &&other) noexcept : handle_(std::exchange(other.handle_, none)) {}
    FileLock &operator=(FileLock &&) = delete;
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;

    /// Lets go of the lock. The file stays: whoever removed it would take it away from a
    /// process that has just opened it.
    ~FileLock();

    /// Tries to lock the file `path` without waiting. What it holds plays no part and stays.
    /// Only a regular file that belongs to the user counts. Programs that this process starts
    /// do not inherit the lock. To be called on an object that holds none.
    Outcome TryLock(const QString &path, IfMissing ifMissing);

    /// What tells the users of a machine apart, fit for the name of a file.
    static QString User();

private:
    static constexpr qintptr none = -1;
    qintptr handle_ = none; ///< as the system names an open file
};
