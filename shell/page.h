#pragma once

// What the three stacked pages share: the violet ground. It covers what lies under them.

#include "shell/drawing.h"
#include "shell/style.h"

#include <QWidget>

class Page : public QWidget {
public:
    explicit Page(QWidget *parent) : QWidget(parent) {}

protected:
    // Not marked as opaque, so that the toolkit paints what lies below as well: with 1.25
    // pixels of the display to the logical one, the edges of the two need not meet.
    void paintEvent(QPaintEvent *) override {
        QPainter painter(this);
        DrawGround(painter, rect(), Colors::violet);
    }
};
