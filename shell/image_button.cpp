#include "shell/image_button.h"

#include "shell/drawing.h"
#include "shell/image_list.h"
#include "shell/keys.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>

namespace {

/// Whether the platform lets a program capture the mouse. Wayland, for one, does not; there
/// a button turns plain as soon as the mouse leaves it.
bool CanGrabMouse() {
    static const bool can = QGuiApplication::platformName() == QLatin1StringView("xcb") ||
                            QGuiApplication::platformName() == QLatin1StringView("windows");
    return can;
}

} // namespace

ImageButton::ImageButton(int plain, const QString &name, QWidget *parent)
    : QAbstractButton(parent), plain_(plain), picture_(plain) {
    setAccessibleName(name);
    setCursor(Qt::PointingHandCursor);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
}

bool ImageButton::HasCapture() const {
    return captured_ && (!CanGrabMouse() || QWidget::mouseGrabber() == this);
}

void ImageButton::SetCapture() {
    captured_ = true;
    if (CanGrabMouse())
        grabMouse(cursor());
}

void ImageButton::ReleaseCapture() {
    captured_ = false;
    if (QWidget::mouseGrabber() == this)
        releaseMouse();
}

void ImageButton::TurnPlain() {
    ReleaseCapture();
    SetPicture(plain_);
}

void ImageButton::SetPicture(int position) {
    if (picture_ == position)
        return;
    picture_ = position;
    update();
}

void ImageButton::mouseMoveEvent(QMouseEvent *event) {
    QAbstractButton::mouseMoveEvent(event);
    emit mouseMove(event->position().x(), event->position().y());
}

void ImageButton::mouseReleaseEvent(QMouseEvent *event) {
    // Released first, so that a window that the click opens gets the mouse. The image stays
    // as it is until the next move.
    ReleaseCapture();
    QAbstractButton::mouseReleaseEvent(event);
}

void ImageButton::leaveEvent(QEvent *event) {
    QAbstractButton::leaveEvent(event);
    // While the mouse is captured, the next move outside turns the button plain.
    if (QWidget::mouseGrabber() != this)
        TurnPlain();
}

void ImageButton::hideEvent(QHideEvent *event) {
    ReleaseCapture();
    QAbstractButton::hideEvent(event);
}

bool ImageButton::event(QEvent *event) {
    if (event->type() == QEvent::WindowDeactivate) // another window has come up
        TurnPlain();
    return QAbstractButton::event(event);
}

void ImageButton::keyPressEvent(QKeyEvent *event) {
    if (IsEnter(*event)) {
        if (!event->isAutoRepeat())
            click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void ImageButton::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    DrawArtwork(painter, ImageList::Key(picture_), rect());
    if (hasFocus()) { // around the pill, or around the circle that stands in the middle
        QRect frame = rect();
        if (frame.width() < 2 * frame.height())
            frame = QRect((frame.width() - frame.height()) / 2, 0, frame.height(), frame.height());
        DrawFocusFrame(painter, frame, frame.height() / 2.0);
    }
}

void ImageMouseMove(ImageButton *button, int plain, int hover, qreal X, qreal Y) {
    if (X < 0 || X > button->width() || Y < 0 || Y > button->height()) {
        button->ReleaseCapture();
        button->SetPicture(plain);
    } else if (!button->HasCapture()) {
        button->SetCapture();
        button->SetPicture(hover);
    }
}
