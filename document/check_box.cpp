#include "document/check_box.h"

#include "shell/drawing.h"
#include "shell/style.h"

namespace {

constexpr int side = 15;
constexpr int gap = 7;

} // namespace

QSize CheckBox::sizeHint() const {
    const QSize words = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {side + gap + words.width() + 2, qMax(side, words.height()) + 4};
}

bool CheckBox::hitButton(const QPoint &point) const {
    return QRect(QPoint(), sizeHint()).adjusted(0, -2, 0, height()).contains(point);
}

void CheckBox::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const QRect box(0, (height() - side) / 2, side, side);
    DrawBox(painter, box, InputBox(hasFocus()));
    if (isChecked()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Colors::gold, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF({QPointF(box.left() + 3.8, box.top() + 7.6),
                                        QPointF(box.left() + 6.6, box.top() + 10.4),
                                        QPointF(box.left() + 11.4, box.top() + 4.8)}));
    }
    painter.setPen(Qt::white);
    painter.drawText(rect().adjusted(side + gap, 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text());
}
