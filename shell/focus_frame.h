#pragma once

// The mark of the keyboard focus on the controls that the window draws itself, in the gold
// that the style sheet gives to the others.

#include "shell/style.h"

#include <QPainter>

/// Draws a rounded gold frame just inside `place`. A radius of half the height makes a pill.
inline void DrawFocusFrame(QPainter &painter, const QRectF &place, qreal radius) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Colors::gold, 1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place.adjusted(0.6, 0.6, -0.6, -0.6), radius, radius);
}
