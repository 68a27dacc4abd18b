#pragma once

// What the three stacked pages share: the violet ground, and that they cover what lies
// under them, which then need not be painted.

#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

class Page : public QWidget {
public:
    /// The ground of every page.
    static constexpr QColor ground{89, 73, 110};

    explicit Page(QWidget *parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

protected:
    void paintEvent(QPaintEvent *event) override { QPainter(this).fillRect(event->rect(), ground); }
};
