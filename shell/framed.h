#pragma once

// Controls in a box of our own drawing. The style sheet leaves them room for a frame and
// draws none, because it would draw it in logical pixels (see drawing.h).

#include "shell/drawing.h"

#include <QEvent>
#include <QWidget>

/// A scroll area of the class `Base` on a ground, with a frame. A class of its own says
/// which by BoxNow(), which may depend on the focus.
template <typename Base> class Framed : public Base {
public:
    using Base::Base;

protected:
    virtual BoxLook BoxNow() const = 0;

    bool event(QEvent *event) override {
        const bool result = Base::event(event);
        switch (event->type()) {
        case QEvent::Paint: { // around the viewport, which is painted by itself
            QPainter painter(this);
            DrawBox(painter, this->rect(), BoxNow());
            break;
        }
        case QEvent::FocusIn:
        case QEvent::FocusOut:
            this->update();
            break;
        default:
            break;
        }
        return result;
    }
};
