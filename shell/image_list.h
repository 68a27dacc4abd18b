#pragma once

// IMG, the images of the image buttons in pairs, plain and hover, addressed by position
// from 1 as the handlers do. They are vector drawings, rendered at the display's own
// resolution.

#include <QPixmap>
#include <QRegion>
#include <QSize>
#include <QString>

namespace ImageList {

/// Number of images; positions run from 1 to this.
inline constexpr int count = 10;

/// The key of an image: the button's word, with "-hyper" behind it for the hover form.
QString Key(int position);

/// The image at `position` (1 to 10), drawn at `size` logical pixels for a display with
/// `devicePixelRatio` device pixels to the logical one.
QPixmap Picture(int position, QSize size, qreal devicePixelRatio);

} // namespace ImageList

/// Any drawing of the resources, `name` without folder and ending. Outside `inSight`, in
/// logical pixels, it stays transparent; an empty region stands for all of it.
QPixmap RenderArtwork(const QString &name, QSize size, qreal devicePixelRatio,
                      const QRegion &inSight = {});
