#include "shell/app.h"

#include "shell/artwork.h"
#include "shell/style.h"
#include "version.h"

#include <QApplication>

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
    QApplication::setWindowIcon(ProgramIcon());
    QApplication::setStyle(new DesktopStyle);
    QApplication::setFont(WindowFont());
}
