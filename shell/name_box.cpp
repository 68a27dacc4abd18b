#include "shell/name_box.h"

#include "shell/drawing.h"
#include "shell/keys.h"
#include "shell/style.h"

#include <limits>

NameBox::NameBox(QWidget *parent) : QLineEdit(parent) {
    setMaxLength(std::numeric_limits<int>::max()); // the box itself sets no limit to a name
}

QString NameBox::Filtered(QString typed) {
    for (QChar &character : typed) {
        if (!character.isPrint() || character.unicode() > std::numeric_limits<qint16>::max())
            continue;
        auto KeyAscii = static_cast<qint16>(character.unicode());
        emit keyPress(KeyAscii);
        character = QChar(KeyAscii);
    }
    return typed;
}

void NameBox::keyPressEvent(QKeyEvent *event) {
    if (composing_ && IsEnter(*event))
        return; // meant for the input method
    const QString typed = event->text();
    const QString text = typed.size() == 1 ? Filtered(typed) : typed;
    if (text == typed) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    QKeyEvent changed(event->type(), event->key(), event->modifiers(), text, event->isAutoRepeat(),
                      static_cast<quint16>(event->count()));
    QLineEdit::keyPressEvent(&changed);
    event->setAccepted(changed.isAccepted());
}

void NameBox::inputMethodEvent(QInputMethodEvent *event) {
    composing_ = !event->preeditString().isEmpty();
    QInputMethodEvent changed(event->preeditString(), event->attributes());
    changed.setCommitString(Filtered(event->commitString()), event->replacementStart(),
                            event->replacementLength());
    QLineEdit::inputMethodEvent(&changed);
    event->setAccepted(changed.isAccepted());
}

void NameBox::paintEvent(QPaintEvent *event) {
    {
        QPainter painter(this);
        DrawBox(painter, rect(), InputBox(hasFocus()));
    }
    QLineEdit::paintEvent(event);
}
