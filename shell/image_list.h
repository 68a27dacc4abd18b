#pragma once

// IMG, the images of the image buttons in pairs, plain and hover, addressed by position
// from 1 as the handlers do. They are part of the artwork (shell/artwork.h).

#include <QString>

namespace ImageList {

/// Number of images; positions run from 1 to this.
inline constexpr int count = 10;

/// The key of the image at `position` (1 to 10), which is the name of its picture: the
/// button's word, with "-hyper" behind it for the hover form. Throws std::out_of_range for any
/// other position.
QString Key(int position);

} // namespace ImageList
