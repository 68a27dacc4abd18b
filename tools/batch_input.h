#pragma once

// The lines of all files of a batch, one behind the other.

#include "tools/line_reader.h"
#include "tools/options.h"
#include "tools/people_lines.h"

#include <memory>
#include <string>

/// A line that may hold a person.
struct BatchLine {
    std::string text;
    bool tooLong = false;       ///< only the beginning of the line is there
    long long number = 0;       ///< counted through all files
    std::size_t file = 0;       ///< index in Options::batchFiles
    long long numberInFile = 0; ///< counted within its file
};

class BatchInput {
public:
    /// Throws Refusal with ExitCode::CannotReadOrWrite when one of the files cannot be opened.
    /// It lives no longer than `options`.
    explicit BatchInput(const Options &options);

    /// Puts the next line that is neither blank nor a header into `line`. Returns false at the
    /// end. Waits for no more than the line. Throws Refusal when a file cannot be read, and for
    /// one that begins in a form that is not read.
    bool Next(BatchLine &line);

    /// What knows the columns of the file of the latest line.
    PeopleLines &Lines() { return lines_; }

    /// The header above the latest line; empty for JSON Lines.
    const std::string &Header() const { return header_; }

    /// Whether a line of a form that is read has come by, header or person.
    bool HasBegun() const { return begun_; }

    /// How many bytes all files have on the disk; 0 where that is not known.
    long long Size() const { return size_; }

    /// How many of these are behind the latest line.
    long long Passed() const { return before_ + (reader_ ? reader_->Passed() : 0); }

private:
    /// Takes the first line of a file that is not blank. Returns true when it was a header.
    bool Begin(const BatchLine &line);

    const Options &options_;
    std::unique_ptr<LineReader> reader_; ///< of the present file
    std::size_t file_ = 0;
    PeopleLines lines_;
    std::string header_;
    bool begunFile_ = false;
    bool begun_ = false;
    long long number_;
    long long numberInFile_ = 0;
    long long size_ = 0;
    long long before_ = 0; ///< bytes of the files that are done
};
