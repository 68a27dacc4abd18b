#include "shell/single_instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

/// Tells data folders apart: with another data folder the program may run once more.
QString Mark(const QString &dataFolder) {
    const QByteArray folder = QDir(dataFolder).absolutePath().toUtf8();
    const QByteArray hash = QCryptographicHash::hash(folder, QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.first(8).toHex());
}

/// The files that can be locked, best first, under names that differ wherever they lie.
QStringList Places() {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(data);
    QStringList places{data + u"/instance.lock"_s};
    // Asked for by the toolkit's name, the folder would be made, with a warning.
    if (const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR"); !runtime.isEmpty())
        places << runtime + u"/orravane-%1.lock"_s.arg(Mark(data));
    return places << QDir::tempPath() + u"/orravane-%1-%2.lock"_s.arg(FileLock::User(), Mark(data));
}

} // namespace

// Two locks are held. So it does not matter when one of the folders cannot be written, or is
// emptied or mended while the program runs: the other lock still stands between two instances.
bool SingleInstance::AnotherIsRunning() {
    using IfMissing = FileLock::IfMissing;
    std::vector<FileLock> taken;
    for (const QStringList places = Places(); const QString &place : places) {
        FileLock lock;
        const bool enough = taken.size() == 2;
        switch (lock.TryLock(place, enough ? IfMissing::LeaveMissing : IfMissing::Create)) {
        case FileLock::Outcome::HeldByAnother:
            return true; // and what has been taken is let go
        case FileLock::Outcome::Taken:
            taken.push_back(std::move(lock));
            break;
        case FileLock::Outcome::Impossible:
            break;
        }
    }
    locks_ = std::move(taken);
    return false;
}
