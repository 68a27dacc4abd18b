#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

/// Ends the process at once, without any way out of the program's own, when everything
/// that the first paint of a widget belongs to has been painted.
class QuitAfterPaint : public QObject {
public:
    explicit QuitAfterPaint(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, [] { std::_Exit(0); });
        return QObject::eventFilter(watched, event);
    }
};
