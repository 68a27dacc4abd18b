#pragma once

// The artwork: vector drawings in the sources, drawn when the program is built at every scale
// of artworkScales, so that a display of such a scale gets a picture of its own resolution.
// Everything that is shown of the artwork comes through here.

#include "artwork_list.h"

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

/// The drawing `name` (without folder and ending) for a place of `size` device pixels. Where one
/// of the scales gives the place its size, this is the picture of that scale, pixel for pixel;
/// otherwise the next larger one made smaller, and beyond the largest that one made larger.
QPixmap LoadArtwork(const QString &name, QSize size);

/// The same for the picture behind the whole window. Only what is in sight has been drawn of it
/// (backgroundParts); where the tree and the pages lie it has one colour.
QPixmap LoadBackground(QSize size);

/// The icon of the program.
QIcon ProgramIcon();
