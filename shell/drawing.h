#pragma once

// Drawing on whole device pixels. Where the display has, say, 1.25 of them to the logical
// pixel, an edge at a whole logical pixel would lie between two of them, and lines would
// come out blurred or of uneven thickness. Everything here rounds a place to device pixels
// first, in the way in which the toolkit rounds the place of a widget.

#include <QColor>
#include <QPainter>
#include <QRect>
#include <QString>

/// A box with a frame, all in logical pixels.
struct BoxLook {
    QColor frame;
    qreal width = 1;                 ///< of the frame: at least one device pixel
    qreal radius = 2;                ///< of the corners
    QColor ground = Qt::transparent; ///< inside the frame
};

/// The size of `place` in device pixels.
QSize DeviceSize(const QPainter &painter, const QRect &place);

/// Draws `box` so that its outer edge is that of `place`.
void DrawBox(QPainter &painter, const QRect &place, const BoxLook &box);

/// Fills `place`.
void DrawGround(QPainter &painter, const QRect &place, const QColor &color);

/// Draws a drawing of the artwork into `place`, with the resolution of the display.
void DrawArtwork(QPainter &painter, const QString &name, const QRect &place);

/// Draws a picture that has been made for this display, its top left corner at that of
/// `place`, without scaling it.
void DrawPicture(QPainter &painter, const QRect &place, const QPixmap &picture);

/// Draws the mark of the keyboard focus just inside `place`.
void DrawFocusFrame(QPainter &painter, const QRect &place, qreal radius);
