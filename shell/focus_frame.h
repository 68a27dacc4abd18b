#pragma once

// The mark of the keyboard focus on the controls that the window draws itself.

#include <QPainter>

/// Draws a rounded white frame just inside `place`.
inline void DrawFocusFrame(QPainter &painter, const QRect &place) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(place).adjusted(0.75, 0.75, -0.75, -0.75), 4, 4);
}
