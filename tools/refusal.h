#pragma once

// What the program says when it cannot do what it was asked to.

#include <QString>

#include <exception>
#include <utility>

/// How the program ends.
enum class ExitCode {
    Ok = 0,
    Failed = 1,    ///< some lines of a batch were wrong, or an output could not be written
    WrongInput = 2 ///< wrong use: options, a person's data, or a batch that cannot be read at all
};

/// Thrown with one line that says what is wrong and what is allowed. Within a batch it is
/// caught for each line of the input, where it refuses that one person; anywhere else in
/// main, where it ends the program.
class Refusal : public std::exception {
public:
    explicit Refusal(QString line, ExitCode code = ExitCode::WrongInput)
        : line_(std::move(line)), code_(code) {}

    const QString &Line() const { return line_; }
    ExitCode Code() const { return code_; }
    const char *what() const noexcept override { return "refused"; }

private:
    QString line_;
    ExitCode code_;
};
