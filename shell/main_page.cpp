#include "shell/main_page.h"

#include "shell/geometry.h"
#include "shell/image_list.h"
#include "shell/links.h"
#include "shell/style.h"

#include <QPaintEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

MainPage::MainPage(QWidget *parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

void MainPage::paintEvent(QPaintEvent *event) {
    const qreal ratio = devicePixelRatioF();
    if (sky_.isNull() || !qFuzzyCompare(sky_.devicePixelRatio(), ratio)) {
        // The tree and the pages never move, so what lies under them is not drawn.
        const QRegion inSight = QRegion(rect()) - At("TV").place - At("Picture1").place;
        sky_ = RenderArtwork(u"background"_s, size(), ratio, inSight);
        // The web address is drawn as a part of the picture, because the host is known only
        // when the program is built. lblHyperlink lies over it, has no text and takes the click.
        QPainter painter(&sky_);
        QFont bold = font();
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(Colors::paleGold);
        const QRect place = At("lblHyperlink").place.adjusted(0, 0, -6, 0); // room for its frame
        painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, SiteAddress());
    }
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawPixmap(0, 0, sky_);
}
