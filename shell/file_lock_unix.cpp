#include "shell/file_lock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int Open(const QByteArray &path, int flags) {
    // Closed in programs that are started, follows no link, waits for nobody where a pipe
    // stands in the file's place.
    return open(path.constData(), flags | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY, 0600);
}

bool IsRegularFileOfTheUser(int file) {
    struct stat facts {};
    return fstat(file, &facts) == 0 && S_ISREG(facts.st_mode) && facts.st_uid == geteuid();
}

} // namespace

FileLock::~FileLock() {
    if (handle_ != none)
        close(static_cast<int>(handle_));
}

FileLock::Outcome FileLock::TryLock(const QString &path, IfMissing ifMissing) {
    const QByteArray name = QFile::encodeName(path);
    int file = Open(name, ifMissing == IfMissing::Create ? O_RDWR | O_CREAT : O_RDWR);
    if (file < 0) // on a disk that has become read-only the file can still be locked
        file = Open(name, O_RDONLY);
    if (file < 0)
        return Outcome::Impossible;
    if (!IsRegularFileOfTheUser(file)) {
        close(file);
        return Outcome::Impossible;
    }

    int failure = 0;
    do
        failure = flock(file, LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
    while (failure == EINTR);
    if (failure != 0) {
        close(file);
        return failure == EWOULDBLOCK ? Outcome::HeldByAnother : Outcome::Impossible;
    }
    handle_ = file;
    return Outcome::Taken;
}

QString FileLock::User() { return QString::number(geteuid()); }
