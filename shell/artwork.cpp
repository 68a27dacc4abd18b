#include "shell/artwork.h"

#include "shell/style.h"

#include <QImageReader>
#include <QPainter>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString Picture(const QString &name, int scale) {
    return u":/artwork/%1/%2.png"_s.arg(scale).arg(name);
}

/// A length or a place at a scale, in whole pixels.
int RoundedDown(int length, int scale) { return length * scale / 100; }
int RoundedUp(int length, int scale) { return (length * scale + 99) / 100; }

QSize AtMost(QSize size, int scale) {
    return {RoundedDown(size.width(), scale), RoundedDown(size.height(), scale)};
}

QSize AtLeast(QSize size, int scale) {
    return {RoundedUp(size.width(), scale), RoundedUp(size.height(), scale)};
}

bool Covers(QSize outer, QSize inner) { return outer.expandedTo(inner) == outer; }

/// What `load` has at the scale that suits a place of `size` device pixels; `drawn` is its size
/// at 100 percent.
template <class Load> QPixmap Fitted(QSize drawn, QSize size, const Load &load) {
    int scale = artworkScales.back();
    for (const int each : artworkScales) {
        if (Covers(AtLeast(drawn, each), size)) {
            scale = each;
            break;
        }
    }
    QImage picture = load(scale);
    if (picture.size() != size) {
        // The corners of a place are rounded to pixels, so it can be a pixel narrower than the
        // picture. That pixel is cut off: squeezing it in would blur all the others.
        const bool fits = Covers(picture.size(), size) && Covers(size, AtMost(drawn, scale));
        picture = fits ? picture.copy(QRect(QPoint(), size))
                       : picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return QPixmap::fromImage(std::move(picture));
}

QSize BackgroundSize() {
    QRect all;
    for (const QRect &part : backgroundParts)
        all |= part;
    return all.size();
}

QImage Background(int scale) {
    QImage whole(AtLeast(BackgroundSize(), scale), QImage::Format_RGB32);
    whole.fill(Colors::violet);
    QPainter painter(&whole);
    for (std::size_t number = 0; number < backgroundParts.size(); ++number) {
        const QPoint corner = backgroundParts[number].topLeft();
        painter.drawImage(RoundedDown(corner.x(), scale), RoundedDown(corner.y(), scale),
                          QImage(Picture(u"background-%1"_s.arg(number), scale)));
    }
    return whole;
}

} // namespace

QPixmap LoadArtwork(const QString &name, QSize size) {
    return Fitted(QImageReader(Picture(name, artworkScales.front())).size(), size,
                  [&](int scale) { return QImage(Picture(name, scale)); });
}

QPixmap LoadBackground(QSize size) { return Fitted(BackgroundSize(), size, Background); }

QIcon ProgramIcon() {
    QIcon icon; // of ready pictures: for a file, the toolkit would look for a plugin
    for (const int size : {16, 32, 64})
        icon.addPixmap(QPixmap(u":/artwork/icon/%1.png"_s.arg(size)));
    return icon;
}
