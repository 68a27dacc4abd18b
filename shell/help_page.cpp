#include "shell/help_page.h"

#include "shell/geometry.h"
#include "shell/link_label.h"

namespace {

QLabel *Paragraph(const QString &text, QWidget *page) {
    auto *label = new QLabel(text, page);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    return label;
}

} // namespace

HelpPage::HelpPage(QWidget *parent) : Page(parent) {
    lblHelp[0] = Placed(new LinkLabel(tr("Online Help"), this), At("lblHelp0"));
    lblHelp[0]->setToolTip(tr("Click To Go To Online Help"));
    Label15 = Placed(
        Paragraph(
            tr("Having doubts on using this software? Feel free to access our online help and get "
               "all your queries answered."),
            this),
        At("Label15"));

    lblHelp[1] = Placed(new LinkLabel(tr("Visit Us Online"), this), At("lblHelp1"));
    lblHelp[1]->setToolTip(tr("Click To Visit Us Online"));
    Label16 = Placed(Paragraph(tr("Visit our official webpage to know more about Orravane."), this),
                     At("Label16"));

    lblAbout = Placed(new QLabel(tr("About Software"), this), At("lblAbout2"));
    lblAbout->setToolTip(tr("About Software"));
    lblAbout->setCursor(Qt::PointingHandCursor);
    Label17 = Placed(
        Paragraph(
            tr("Orravane is a complex numerology report software based on the Pythagorean "
               "Numerology system. It helps you gain an insight over your weaknesses and face the "
               "problems in life boldly. This software helps you understand the effects of cosmic "
               "vibrations of letters and numbers on an individual."),
            this),
        At("Label17"));
}
