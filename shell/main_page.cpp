#include "shell/main_page.h"

#include "shell/geometry.h"
#include "shell/image_list.h"
#include "shell/links.h"

#include <QPaintEvent>
#include <QPainter>

MainPage::MainPage(QWidget *parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

void MainPage::paintEvent(QPaintEvent *event) {
    const qreal ratio = devicePixelRatioF();
    if (sky_.isNull() || !qFuzzyCompare(sky_.devicePixelRatio(), ratio)) {
        // The tree and the pages never move, so what lies under them is not drawn.
        const QRegion inSight = QRegion(rect()) - PlaceOf("TV") - PlaceOf("Picture1");
        sky_ = RenderArtwork(QStringLiteral("background"), size(), ratio, inSight);
        // The address belongs to the picture but follows the site that was built in. The
        // label above it is an empty hot area.
        QPainter painter(&sky_);
        QFont bold = font();
        bold.setBold(true);
        painter.setFont(bold);
        painter.setPen(QColor(255, 217, 92));
        const QRect place = PlaceOf("lblHyperlink").adjusted(0, 0, -6, 0); // room for its frame
        painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, SiteAddress());
    }
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawPixmap(0, 0, sky_);
}
