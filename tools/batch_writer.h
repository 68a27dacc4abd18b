#pragma once

// Where a batch puts what it makes of its lines. Another form of output is another writer.

#include "core/user_profile.h"
#include "tools/options.h"
#include "tools/output.h"

#include <memory>
#include <string>
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

    /// Called behind the last line, if Begin was called.
    virtual void Finish() = 0;

protected:
    BatchWriter() = default;
    BatchWriter(const BatchWriter &) = delete;
    BatchWriter &operator=(const BatchWriter &) = delete;
};

/// Whether a writer has the first people of the output or later ones.
enum class Place { AtTheBeginning, Behind };

/// The writer that `options` ask for, which writes to `sink`; one that makes files in a folder
/// needs none. It lives no longer than both. It and all its functions throw Refusal with
/// ExitCode::CannotReadOrWrite when the output cannot be written.
std::unique_ptr<BatchWriter> MakeBatchWriter(const Options &options, ByteSink *sink,
                                             Place place = Place::AtTheBeginning);

/// What stands between two people of the output that `options` ask for. A writer that begins
/// behind others writes it before its first person too.
std::string_view BetweenPeople(const Options &options);

/// What `options` ask for about one person alone, whose names were `given`.
std::string AnswerTo(const modReadings::UserProfile &person, const modReadings::GivenName &given,
                     const Options &options);
