#pragma once

// What the three stacked pages share: the violet ground, and that they cover what lies
// under them, which then need not be painted.

#include "shell/style.h"

#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

class Page : public QWidget {
public:
    explicit Page(QWidget *parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

protected:
    void paintEvent(QPaintEvent *event) override {
        QPainter(this).fillRect(event->rect(), Colors::violet);
    }
};
