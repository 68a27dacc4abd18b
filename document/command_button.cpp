#include "document/command_button.h"

#include "shell/drawing.h"
#include "shell/style.h"

CommandButton::CommandButton(const QString &text, QWidget *parent) : QPushButton(text, parent) {
    setAttribute(Qt::WA_Hover); // painted again as the mouse comes and goes
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
}

QSize CommandButton::sizeHint() const {
    return {fontMetrics().size(Qt::TextShowMnemonic, text()).width() + 34, 26};
}

void CommandButton::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const bool lit = isEnabled() && (underMouse() || isDown());
    const QRect place = rect().adjusted(2, 2, -2, -2);
    DrawBox(painter, place,
            {.frame = isEnabled() ? (lit ? Colors::paleGold : Colors::gold) : Colors::haze,
             .width = 1.2,
             .radius = place.height() / 2.0,
             .ground = isDown() ? Colors::night : (lit ? Colors::glow : Colors::dusk)});
    if (hasFocus())
        DrawFocusFrame(painter, rect(), rect().height() / 2.0);
    painter.setPen(isEnabled() ? Colors::paleGold : Colors::mist);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
}
