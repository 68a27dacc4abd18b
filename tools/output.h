#pragma once

// Where the report tool's bytes go: standard output, or a file that is written whole or
// not at all. What cannot be written throws Refusal with ExitCode::CannotReadOrWrite.

#include <QString>

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

/// Takes bytes, one piece behind the other.
class ByteSink {
public:
    virtual ~ByteSink() = default;
    virtual void Write(std::string_view bytes) = 0;

protected:
    ByteSink() = default;
    ByteSink(const ByteSink &) = delete;
    ByteSink &operator=(const ByteSink &) = delete;
};

class Output final : public ByteSink {
public:
    enum class Kind {
        /// What the option --output names. Empty or "-" is standard output. On Unix,
        /// "/dev/stdout", "/dev/stderr", "/dev/fd/N" and "/proc/self/fd/N" are the open
        /// descriptor, written from where it stands. A device or a pipe is written as it is.
        /// Anything else is a file; a link to one is followed, and the file behind it replaced.
        Named,
        /// A file in the folder of --output-dir. What stands there is replaced, whatever it
        /// is but a folder: a link is not followed, a pipe not waited for. The file is not
        /// forced to the disk, since a batch makes many.
        InFolder,
        /// The same, but what stands there stays, and this file is given up.
        NewInFolder,
        /// What a parent has opened as Named under this path and handed on as standard output.
        OfParent
    };

    /// A file is written under another name beside its place and takes that place in
    /// Finish, so that a file that stands there is whole all the time. When the program ends
    /// before, the unfinished file goes with it: on Unix when a signal asks the program to end,
    /// nobody reads its output or its time is up; on Windows however it ends, but for the moment in
    /// which Finish gives the file its name.
    explicit Output(const QString &path, Kind kind = Kind::Named);

    /// Gives up what Finish has not put in place.
    ~Output() override;

    /// Appends `bytes`; on anything but a file they are on their way when this returns.
    void Write(std::string_view bytes) override;

    /// Puts the file in its place. Without this call no file appears.
    void Finish();

    /// Whether people look at what is written, in a terminal.
    bool IsTerminal() const;

    /// What is written to, as the C library numbers it.
    int Descriptor() const { return descriptor_; }

    /// To be called in a child process on Unix: an unfinished file is the parent's, and stays
    /// when a signal ends the child.
    static void LeaveUnfinishedToParent();

private:
    /// The members alone: once this has run, the destructor runs too when the rest fails.
    Output(Kind kind, QString shownName) : name_(std::move(shownName)), kind_(kind) {}

    using Name = std::filesystem::path::string_type; ///< as the system has it
    static Name NameOf(const QString &path);

    void OpenNamed(const Name &name);
    void OpenBeside(Name place);
    void PutInPlace();
    [[noreturn]] void Fail(int error) const;

    QString name_; ///< in messages
    Kind kind_;
    int descriptor_ = -1; ///< -1 once nothing is left to do
    bool owned_ = false;  ///< whether the descriptor is closed in the end
    Name place_;          ///< where the file goes; empty for anything but a file
    Name temporary_;      ///< under which name it is written
};
