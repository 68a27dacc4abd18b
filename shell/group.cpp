#include "shell/group.h"

#include "shell/drawing.h"
#include "shell/style.h"

Group::Group(const QString &title, QWidget *parent) : QGroupBox(title, parent) {}

void Group::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    DrawBox(painter, rect().adjusted(0, 7, 0, 0), {.frame = Colors::haze, .radius = 3});
    QRect caption = fontMetrics().boundingRect(title());
    caption.setWidth(fontMetrics().horizontalAdvance(title().trimmed()));
    caption.moveTopLeft({11, 0});
    DrawGround(painter, caption.adjusted(-3, 0, 3, 0), Colors::violet);
    painter.setPen(Qt::white);
    painter.drawText(caption, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip,
                     title().trimmed());
}
