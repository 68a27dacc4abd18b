#include "shell/app.h"

#include "version.h"

#include <QApplication>
#include <QIcon>

/// A static library's resources have to be asked for. Must stand outside any namespace.
static void InitArtwork() { Q_INIT_RESOURCE(orravane); }

void App::Identify() {
    InitArtwork();
    QApplication::setApplicationName(QStringLiteral("orravane"));
    QApplication::setOrganizationName(QStringLiteral("orravane"));
    QApplication::setApplicationVersion(QLatin1StringView(orravaneVersion));
    QApplication::setDesktopFileName(QStringLiteral("orravane"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/artwork/orravane.svg")));
}
