#pragma once

// Picture3, the help page: three headed texts, two of whose headings are links.

#include "shell/page.h"

#include <QLabel>

class LinkLabel;

class HelpPage : public Page {
    Q_OBJECT

public:
    explicit HelpPage(QWidget *parent);

    LinkLabel *lblHelp[2];
    QLabel *Label15;
    QLabel *Label16;
    QLabel *lblAbout; ///< looks like a link and answers no click
    QLabel *Label17;
};
