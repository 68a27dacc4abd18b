#include "shell/drawing.h"

#include "shell/artwork.h"
#include "shell/style.h"

#include <QPixmapCache>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The device pixels of `logical`: the toolkit, too, rounds the corners and not the size.
QRect OnDevice(const QTransform &toDevice, const QRect &logical) {
    const QRectF exact = toDevice.mapRect(QRectF(logical));
    return {QPoint(qRound(exact.left()), qRound(exact.top())),
            QPoint(qRound(exact.right()) - 1, qRound(exact.bottom()) - 1)};
}

/// For its life time, the painter's coordinates are the pixels of its device.
class DevicePixels {
public:
    explicit DevicePixels(QPainter &painter)
        : painter_(painter), toDevice_(painter.deviceTransform()) {
        painter_.save();
        painter_.setWorldTransform(toDevice_.inverted() * painter_.worldTransform());
    }
    ~DevicePixels() { painter_.restore(); }
    DevicePixels(const DevicePixels &) = delete;
    DevicePixels &operator=(const DevicePixels &) = delete;

    QRect Place(const QRect &logical) const { return OnDevice(toDevice_, logical); }
    qreal Ratio() const { return toDevice_.m11(); }

private:
    QPainter &painter_;
    const QTransform toDevice_;
};

} // namespace

QSize DeviceSize(const QPainter &painter, const QRect &place) {
    return OnDevice(painter.deviceTransform(), place).size();
}

void DrawBox(QPainter &painter, const QRect &place, const BoxLook &box) {
    const DevicePixels pixels(painter);
    const int width = std::max(1, qRound(box.width * pixels.Ratio()));
    const qreal half = width / 2.0; // a pen draws on both sides of its line
    const qreal radius = std::max(0.0, box.radius * pixels.Ratio() - half);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(box.frame, width));
    painter.setBrush(box.ground);
    painter.drawRoundedRect(QRectF(pixels.Place(place)).adjusted(half, half, -half, -half), radius,
                            radius);
}

void DrawGround(QPainter &painter, const QRect &place, const QColor &color) {
    const DevicePixels pixels(painter);
    painter.fillRect(pixels.Place(place), color);
}

void DrawArtwork(QPainter &painter, const QString &name, const QRect &place) {
    const QSize size = DeviceSize(painter, place);
    const QString key = u"%1@%2x%3"_s.arg(name).arg(size.width()).arg(size.height());
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = LoadArtwork(name, size);
        QPixmapCache::insert(key, picture);
    }
    DrawPicture(painter, place, picture);
}

void DrawPicture(QPainter &painter, const QRect &place, const QPixmap &picture) {
    const DevicePixels pixels(painter);
    painter.drawPixmap(QRect(pixels.Place(place).topLeft(), picture.size()), picture);
}

void DrawFocusFrame(QPainter &painter, const QRect &place, qreal radius) {
    DrawBox(painter, place, {Colors::gold, 1.5, radius});
}
