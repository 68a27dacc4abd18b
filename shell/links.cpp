#include "shell/links.h"

#include "site.h"

#include <QDesktopServices>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

void OpenPage(const char *path) {
    QUrl page;
    page.setScheme(u"https"_s);
    page.setHost(SiteAddress());
    page.setPath(QLatin1StringView(path));
    QDesktopServices::openUrl(page); // the result is not looked at, on purpose
}

} // namespace

QString SiteAddress() { return QLatin1StringView(siteHost); }

void OpenHelpPage() { OpenPage("/orravane-help/"); }

void OpenHomePage() { OpenPage("/"); }

void OpenThankYouPage() { OpenPage("/thankyou-for-using-orravane.php"); }

void OpenUpdatePage() { OpenPage(updatePath); }
