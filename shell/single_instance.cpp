#include "shell/single_instance.h"

#include <QDir>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QString LockPath() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(folder);
    return folder + u"/instance.lock"_s;
}

} // namespace

SingleInstance::SingleInstance() : lock_(LockPath()) {
    lock_.setStaleLockTime(0); // age says nothing: a run may last for days
}

bool SingleInstance::AnotherIsRunning() {
    return !lock_.tryLock(0) && lock_.error() == QLockFile::LockFailedError;
}
