#include "tools/output.h"

#include "tools/refusal.h"
#include "tools/text.h"

#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

Output::Output(const QString &fileName, const QString &option)
    : name_(fileName.isEmpty() ? u"standard output"_s : option + u": "_s + Excerpt(fileName)) {
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

void Output::Fail(const QString &reason) const {
    throw Refusal(name_ + u": "_s + reason, ExitCode::Failed);
}

void Output::Write(std::string_view bytes) {
    if (file_) {
        const auto size = static_cast<qint64>(bytes.size());
        if (file_->write(bytes.data(), size) != size)
            Fail(file_->errorString());
    } else if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size() ||
               std::fflush(stdout) != 0) {
        Fail(QString::fromLocal8Bit(std::strerror(errno)));
    }
}

void Output::Finish() {
    if (!file_)
        return;
    // On a full disk the flush may be the first to fail; a commit without it would put a file
    // that is cut short in place.
    auto *replacing = qobject_cast<QSaveFile *>(file_.get());
    if (!file_->flush() || (replacing != nullptr && !replacing->commit()))
        Fail(file_->errorString());
}
