#include "shell/main_page.h"

#include "shell/artwork.h"
#include "shell/drawing.h"
#include "shell/geometry.h"
#include "shell/links.h"
#include "shell/style.h"

#include <QPainter>

using namespace Qt::StringLiterals;

MainPage::MainPage(QWidget *parent) : QWidget(parent) {}

QPixmap MainPage::DrawSky(QSize size, qreal ratio) const {
    QPixmap sky = LoadBackground(size);

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
