#include "document/busy_bar.h"

#include "shell/drawing.h"
#include "shell/style.h"

#include <cmath>
#include <numbers>

BusyBar::BusyBar(QWidget *parent) : QProgressBar(parent) {
    setRange(0, 0);
    setFixedHeight(8);
    frames_.setInterval(33);
    connect(&frames_, &QTimer::timeout, this, qOverload<>(&QWidget::update));
}

void BusyBar::showEvent(QShowEvent *event) {
    shownFor_.start();
    frames_.start();
    QProgressBar::showEvent(event);
}

void BusyBar::hideEvent(QHideEvent *event) {
    frames_.stop();
    QProgressBar::hideEvent(event);
}

void BusyBar::paintEvent(QPaintEvent *) {
    constexpr double thereAndBack = 2400; // milliseconds
    QPainter painter(this);
    DrawBox(painter, rect(), {.frame = Colors::haze, .radius = 4, .ground = Colors::night});
    const double phase = std::fmod(static_cast<double>(shownFor_.elapsed()), thereAndBack);
    const double place = 0.5 - 0.5 * std::cos(phase / thereAndBack * 2 * std::numbers::pi);
    const int length = width() / 4;
    const QRect slider(2 + static_cast<int>(place * (width() - 4 - length)), 2, length,
                       height() - 4);
    DrawBox(painter, slider, {.frame = Colors::gold, .radius = 2, .ground = Colors::gold});
}
