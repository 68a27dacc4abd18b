#include "tests/shell/browser_log.h"

#include "site.h"

#include <QDesktopServices>

BrowserLog::BrowserLog() {
    for (const char *scheme : {"http", "https", "file"})
        QDesktopServices::setUrlHandler(QLatin1StringView(scheme), this, "Open");
}

BrowserLog::~BrowserLog() {
    for (const char *scheme : {"http", "https", "file"})
        QDesktopServices::unsetUrlHandler(QLatin1StringView(scheme));
}

QUrl PageOfSite(const QString &path) {
    return QUrl(QStringLiteral("https://") + QLatin1StringView(siteHost) + path);
}
