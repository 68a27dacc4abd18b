#include "tools/output.h"

#include "tools/excerpt.h"

#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>

Output::Output(const QString &fileName, const QString &option)
    : name_(fileName.isEmpty() ? QStringLiteral("standard output")
                               : option + QStringLiteral(": ") + Excerpt(fileName)) {
    if (fileName.isEmpty())
        return;
    const QFileInfo present(fileName);
    if (present.exists() && !present.isFile() && !present.isDir())
        file_ = std::make_unique<QFile>(fileName);
    else
        file_ = std::make_unique<QSaveFile>(fileName);
    if (!file_->open(QIODevice::WriteOnly))
        Fail(file_->errorString());
}

void Output::Fail(const QString &reason) {
    if (error_.isEmpty())
        error_ = name_ + QStringLiteral(": ") + reason;
}

void Output::Write(std::string_view bytes) {
    if (!error_.isEmpty())
        return;
    if (file_) {
        if (file_->write(bytes.data(), static_cast<qint64>(bytes.size())) !=
            static_cast<qint64>(bytes.size()))
            Fail(file_->errorString());
    } else if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size() ||
               std::fflush(stdout) != 0) {
        Fail(QString::fromLocal8Bit(std::strerror(errno)));
    }
}

void Output::Finish() {
    if (!error_.isEmpty() || !file_)
        return;
    // A full disk may show in the flush alone; a commit without it would let a stump through.
    auto *replacing = qobject_cast<QSaveFile *>(file_.get());
    if (!file_->flush() || (replacing != nullptr && !replacing->commit()))
        Fail(file_->errorString());
}
