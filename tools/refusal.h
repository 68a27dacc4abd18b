#pragma once

// What the program says when it cannot do what it was asked to.

#include <QString>

#include <exception>
#include <utility>

/// How the program ends. Scripts rely on these numbers.
enum class ExitCode {
    Ok = 0,               ///< all was read and written
    SomeLinesWrong = 1,   ///< lines of a batch could not be read; its other lines were
    WrongUse = 2,         ///< options, a person's data, or a batch of a form that is not read
    CannotReadOrWrite = 3 ///< the input or the output failed
};

/// Thrown with one line that says what is wrong and what is allowed. For a line of a batch it
/// refuses that one person, and the others go on. Any other ends the program in the end: main
/// tells it, also where it was held back until the work before it was done, or handed on from
/// another process.
class Refusal : public std::exception {
public:
    explicit Refusal(QString line, ExitCode code = ExitCode::WrongUse)
        : line_(std::move(line)), code_(code) {}

    const QString &Line() const { return line_; }
    ExitCode Code() const { return code_; }
    const char *what() const noexcept override { return "refused"; }

private:
    QString line_;
    ExitCode code_;
};
