#pragma once

// The pages of the web site, opened in the user's browser. When a page cannot be opened,
// nothing happens and no message appears.

#include <QString>

/// The address as people read it, without the scheme.
QString SiteAddress();

void OpenHelpPage();
void OpenHomePage();
void OpenThankYouPage();
void OpenUpdatePage();
