#pragma once

// Where a batch puts what it makes of its lines. Another form of output is another writer.

#include "core/user_profile.h"
#include "tools/options.h"

#include <memory>
#include <string_view>

class BatchWriter {
public:
    virtual ~BatchWriter() = default;

    /// Called once the first line is known to be of a form that can be read, and not for an
    /// input without one.
    virtual void Begin() = 0;

    /// Reads the person and writes the reading.
    virtual void WritePerson(const modReadings::UserProfile &person, const LineFacts &line) = 0;

    /// Writes what stands in the place of a person who could not be read, if anything.
    virtual void WriteError(const LineFacts &line, std::string_view message) = 0;

    /// Called behind the last line.
    virtual void Finish() = 0;

protected:
    BatchWriter() = default;
    BatchWriter(const BatchWriter &) = delete;
    BatchWriter &operator=(const BatchWriter &) = delete;
};

/// The writer that `options` ask for. It lives no longer than they. It and all its functions
/// throw Refusal with ExitCode::CannotReadOrWrite when the output cannot be written.
std::unique_ptr<BatchWriter> MakeBatchWriter(const Options &options);
