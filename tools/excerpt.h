#pragma once

#include <QString>

/// What a complaint shows of a text that it was given: all of a short one, and of a longer
/// one the first and the last characters with "..." between, sixty in all. A surrogate pair
/// is kept or left out whole.
QString Excerpt(const QString &text);
