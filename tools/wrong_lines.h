#pragma once

// What a batch says of its lines, the wrong ones above all.

#include "tools/options.h"
#include "tools/progress.h"

#include <string>

class WrongLines {
public:
    /// It lives no longer than both.
    WrongLines(const Options &options, Progress &progress)
        : options_(options), progress_(progress) {}

    /// Reports on standard error what is wrong with line `number`, which is `numberInFile` of a
    /// file, and counts it.
    void Report(long long number, std::size_t file, long long numberInFile,
                const std::string &message);

    /// Tells on standard error what is to be said of a person who was read, in the same way.
    void Remark(long long number, std::size_t file, long long numberInFile,
                const std::string &message);

    /// Throws Refusal when the line that was reported last is one too many.
    void RefuseTooMany() const;

    /// Whether RefuseTooMany would throw.
    bool AreTooMany() const { return count_ == options_.maxErrors; }

    long long Count() const { return count_; }

private:
    void Tell(long long number, std::size_t file, long long numberInFile,
              const std::string &message);

    const Options &options_;
    Progress &progress_;
    long long count_ = 0;
    long long last_ = 0; ///< number of the line that was reported last
};
