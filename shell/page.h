#pragma once

// What the three stacked pages share: the violet ground. It covers what lies under them.

#include "shell/drawing.h"
#include "shell/style.h"

#include <QWidget>

class Page : public QWidget {
public:
    explicit Page(QWidget *parent) : QWidget(parent) {}

protected:
    // Not marked as opaque: the toolkit would leave out what lies below, and where the
    // display has 1.25 pixels to the logical one, rounding would leave a row that nobody paints.
    void paintEvent(QPaintEvent *) override {
        QPainter painter(this);
        DrawGround(painter, rect(), Colors::violet);
    }
};
