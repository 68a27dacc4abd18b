#include "shell/app.h"

#include "shell/image_list.h"
#include "shell/style.h"
#include "version.h"

#include <QApplication>
#include <QIcon>

using namespace Qt::StringLiterals;

/// A static library's resources have to be asked for. Must stand outside any namespace.
static void InitArtwork() { Q_INIT_RESOURCE(orravane); }

QString App::Title() { return u"Orravane"_s; }

void App::Identify(const QString &program) {
    InitArtwork();
    QApplication::setApplicationName(program);
    QApplication::setOrganizationName(u"orravane"_s);
    QApplication::setApplicationVersion(QLatin1StringView(orravaneVersion));
    QApplication::setDesktopFileName(program);
    QIcon icon; // drawn here: the toolkit would load a plugin for it and draw more sizes
    for (const int size : {16, 32, 64})
        icon.addPixmap(RenderArtwork(u"orravane"_s, {size, size}));
    QApplication::setWindowIcon(icon);
    QApplication::setStyle(new DesktopStyle);
    QApplication::setFont(WindowFont());
}
