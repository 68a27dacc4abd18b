#pragma once

// Keys that several controls treat alike.

#include <QKeyEvent>

/// Whether it is the key Enter, that of the number pad too.
inline bool IsEnter(const QKeyEvent &event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}
