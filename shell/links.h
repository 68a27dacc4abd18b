#pragma once

// The pages of the web site, opened in the user's browser. A page that cannot be opened
// gives the user no word.

#include <QString>

/// The address as people read it, without the scheme.
QString SiteAddress();

void OpenHelpPage();
void OpenHomePage();
void OpenThankYouPage();
void OpenUpdatePage();
