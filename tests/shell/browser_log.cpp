#include "tests/shell/browser_log.h"

#include "site.h"

#include <QDesktopServices>

using namespace Qt::StringLiterals;

BrowserLog::BrowserLog() {
    for (const QString &scheme : {u"http"_s, u"https"_s, u"file"_s})
        QDesktopServices::setUrlHandler(scheme, this, "Open");
}

BrowserLog::~BrowserLog() {
    for (const QString &scheme : {u"http"_s, u"https"_s, u"file"_s})
        QDesktopServices::unsetUrlHandler(scheme);
}

QStringList BrowserLog::Taken() {
    QStringList paths;
    for (const QUrl &page : std::exchange(pages_, {}))
        paths << (page.scheme() == "https"_L1 && page.host() == QLatin1StringView(siteHost)
                      ? page.path()
                      : page.toString());
    return paths;
}
