#pragma once

// Where the report tool's bytes go: standard output, or a file that is written whole or
// not at all. What cannot be written throws Refusal with ExitCode::Failed.

#include <QSaveFile>

#include <memory>
#include <string_view>

class Output {
public:
    /// To the file of this name, which came with `option`, or to standard output for an
    /// empty one. A device or a pipe is written as it is, since it cannot be replaced.
    explicit Output(const QString &fileName, const QString &option = QStringLiteral("--output"));

    /// Appends `bytes`; on standard output they are on their way when this returns.
    void Write(std::string_view bytes);

    /// Makes the file appear under its name. Without this call no file appears.
    void Finish();

private:
    [[noreturn]] void Fail(const QString &reason) const;

    QString name_;                      ///< in messages
    std::unique_ptr<QFileDevice> file_; ///< none for standard output
};
