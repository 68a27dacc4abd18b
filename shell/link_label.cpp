#include "shell/link_label.h"

#include "shell/focus_frame.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

LinkLabel::LinkLabel(const QString &text, QWidget *parent) : QLabel(text, parent) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}

void LinkLabel::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
        event->key() == Qt::Key_Space)
        emit clicked();
    else
        QLabel::keyPressEvent(event);
}

void LinkLabel::paintEvent(QPaintEvent *event) {
    QLabel::paintEvent(event);
    if (hasFocus()) {
        QPainter painter(this);
        DrawFocusFrame(painter, rect());
    }
}
