#include "tests/shell/temporary_home.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {
QString path;
} // namespace

QString TemporaryHome::Path() { return path; }

TemporaryHome::TemporaryHome() {
    path = folder_.path();
    const auto below = [](const char *variable, const char *name) {
        QDir(path).mkpath(QLatin1StringView(name));
        qputenv(variable, QFile::encodeName(PathOf(QLatin1StringView(name))));
    };
    below("HOME", "home");
    QDir(path).mkpath(QStringLiteral("home/Documents"));
    below("XDG_CONFIG_HOME", "config");
    below("XDG_CONFIG_DIRS", "no-system-config");
    below("XDG_DATA_HOME", "data");
    below("XDG_CACHE_HOME", "cache");
    below("TMPDIR", "temporary");
    below("XDG_RUNTIME_DIR", "runtime");
    QFile::setPermissions(PathOf(QStringLiteral("runtime")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    below("CUPS_SERVER", "no-print-server"); // a folder: nothing answers there
    for (const char *variable : {"PRINTER", "LPDEST", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME",
                                 "QT_SCALE_FACTOR", "LANGUAGE", "LC_TIME", "LANG"})
        qunsetenv(variable);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}
