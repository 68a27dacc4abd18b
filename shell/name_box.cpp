#include "shell/name_box.h"

#include <QKeyEvent>

#include <limits>

NameBox::NameBox(QWidget *parent) : QLineEdit(parent) {
    setMaxLength(std::numeric_limits<int>::max()); // the box itself sets no limit to a name
}

void NameBox::keyPressEvent(QKeyEvent *event) {
    const QString text = event->text();
    if (text.size() == 1 && text.front().isPrint() && text.front().unicode() <= 0x7FFF) {
        const auto typed = static_cast<qint16>(text.front().unicode());
        qint16 KeyAscii = typed;
        emit keyPress(KeyAscii);
        if (KeyAscii != typed) {
            QKeyEvent changed(event->type(), event->key(), event->modifiers(),
                              QString(QChar(KeyAscii)), event->isAutoRepeat(),
                              static_cast<quint16>(event->count()));
            QLineEdit::keyPressEvent(&changed);
            event->setAccepted(changed.isAccepted());
            return;
        }
    }
    QLineEdit::keyPressEvent(event);
}
