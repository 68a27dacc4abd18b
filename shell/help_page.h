#pragma once

// Picture3, the help page: three headed texts, two of whose headings are links.

#include <QLabel>
#include <QWidget>

class LinkLabel;

class HelpPage : public QWidget {
    Q_OBJECT

public:
    explicit HelpPage(QWidget *parent);

    LinkLabel *lblHelp[2];
    QLabel *Label15;
    QLabel *Label16;
    QLabel *lblAbout; ///< looks like a link and answers no click
    QLabel *Label17;
};
