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

/// The key of the image at `position` (1 to 10), which is the name of its drawing: the
/// button's word, with "-hyper" behind it for the hover form.
QString Key(int position);

} // namespace ImageList

/// Any drawing of the resources, `name` without folder and ending, at `size` device pixels.
/// Outside `inSight`, in device pixels, it stays transparent; an empty region stands for all
/// of it. Everything that is drawn from the artwork comes through here.
QPixmap RenderArtwork(const QString &name, QSize size, const QRegion &inSight = {});
