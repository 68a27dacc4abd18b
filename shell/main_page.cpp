#include "shell/main_page.h"

#include "shell/drawing.h"
#include "shell/geometry.h"
#include "shell/image_list.h"
#include "shell/links.h"
#include "shell/style.h"

#include <QPainter>

using namespace Qt::StringLiterals;

MainPage::MainPage(QWidget *parent) : QWidget(parent) {}

QPixmap MainPage::DrawSky(QSize size, qreal ratio) const {
    // The tree and the pages never move, so what lies under them is not drawn, but for an
    // edge that is wider than any rounding.
    const auto covered = [ratio](const QRect &place) {
        return QTransform::fromScale(ratio, ratio).mapRect(place.adjusted(2, 2, -2, -2));
    };
    const QRegion inSight =
        QRegion(QRect(QPoint(), size)) - covered(At("TV").place) - covered(At("Picture1").place);
    QPixmap sky = RenderArtwork(u"background"_s, size, inSight);

    // The web address is drawn as a part of the picture, because the host is known only
    // when the program is built. lblHyperlink lies over it, has no text and takes the click.
    sky.setDevicePixelRatio(ratio);
    QPainter painter(&sky);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(Colors::paleGold);
    painter.drawText(At("lblHyperlink").place, Qt::AlignCenter, SiteAddress());
    painter.end();
    sky.setDevicePixelRatio(1);
    return sky;
}

void MainPage::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QSize size = DeviceSize(painter, rect());
    if (sky_.size() != size) // the first paint, or the window is on another display now
        sky_ = DrawSky(size, painter.deviceTransform().m11());
    DrawPicture(painter, rect(), sky_);
}
