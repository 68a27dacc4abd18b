#pragma once

// Where the report tool's bytes go: standard output, or a file that is written whole or
// not at all.

#include <QSaveFile>

#include <memory>
#include <string_view>

class Output {
public:
    /// To the file of this name, which came with `option`, or to standard output for an
    /// empty one. A device or a pipe is written as it is, since it cannot be replaced.
    explicit Output(const QString &fileName, const QString &option = QStringLiteral("--output"));

    /// Why the output cannot be written, or empty while all is well.
    QString Error() const { return error_; }

    /// Appends `bytes`; on standard output they are on their way when this returns.
    void Write(std::string_view bytes);

    /// Makes the file appear under its name. Without this call no file appears.
    void Finish();

private:
    void Fail(const QString &reason);

    QString name_;                      ///< in complaints
    std::unique_ptr<QFileDevice> file_; ///< none for standard output
    QString error_;
};
