#include "shell/app.h"

#include "version.h"

#include "shell/image_list.h"
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
    QIcon icon; // drawn here: the toolkit would load a plugin for it and draw more sizes
    for (const int size : {16, 32, 64})
        icon.addPixmap(RenderArtwork(QStringLiteral("orravane"), {size, size}, 1));
    QApplication::setWindowIcon(icon);
}
