#pragma once

// What a batch tells the person who waits for it, on standard error: a bar while it goes on, at
// a terminal, and a summary at the end.

#include <chrono>
#include <string>

/// How far a batch has come.
struct BatchCount {
    long long bytes = 0;  ///< of the input, as Progress::Progress counts them
    long long people = 0; ///< who were read
    long long wrong = 0;  ///< lines that were not
};

/// The line that shows how far the work has come, in less than `columns` columns: what does not
/// fit is left out, the bar first. `total` is the size of the work in bytes, 0 when it is not
/// known, and `seconds` what has passed; rate and time left are shown once it is half a second.
std::string ProgressLine(const BatchCount &count, long long total, double seconds, int columns);

/// The line that sums the work up, without its line break.
std::string SummaryLine(const BatchCount &count, double seconds);

class Progress {
public:
    enum class Verbosity {
        Quiet,  ///< neither bar nor summary
        Person, ///< both where standard error is a terminal, and nothing elsewhere
        Summary ///< the summary everywhere, the bar at a terminal
    };

    /// `total` is the size of the work in bytes, 0 when it is not known.
    Progress(long long total, Verbosity verbosity);
    ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    /// Shows how far the work has come; draws a few times a second.
    void Show(const BatchCount &count);

    /// Takes the bar away. To be called before a message on standard error, which would
    /// otherwise stand behind the bar on the same line.
    void Clear();

    /// Takes the bar away if standard output goes to a terminal too. To be called before a
    /// line is written there.
    void ClearForOutput();

    /// Takes the bar away and writes the summary.
    void Finish(const BatchCount &count);

private:
    double Seconds() const;

    const long long total_;
    const bool bar_;
    const bool summary_;
    const bool outputIsTerminal_;
    bool drawn_ = false;
    const std::chrono::steady_clock::time_point start_;
    std::chrono::steady_clock::time_point next_;
};
