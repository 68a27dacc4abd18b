#pragma once

// A bar on standard error for a person who waits at a terminal; nothing elsewhere.

#include <chrono>

class Progress {
public:
    /// `total` is the size of the work in bytes, 0 when it is not known.
    explicit Progress(long long total);
    ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    /// Shows that `bytes` of the input and `people` are done; draws a few times a second.
    void Show(long long bytes, long long people);

    /// Takes the bar away. To be called before a message on standard error, which would
    /// otherwise stand behind the bar on the same line.
    void Clear();

    /// Takes the bar away if standard output goes to a terminal too. To be called before a
    /// line is written there.
    void ClearForOutput();

private:
    const long long total_;
    const bool visible_;
    const bool outputIsTerminal_;
    bool drawn_ = false;
    std::chrono::steady_clock::time_point next_;
};
