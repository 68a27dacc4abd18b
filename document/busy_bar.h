#pragma once

// Shows that work goes on which does not say how far it has come.

#include <QElapsedTimer>
#include <QProgressBar>
#include <QTimer>

class BusyBar : public QProgressBar {
    Q_OBJECT

public:
    explicit BusyBar(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QElapsedTimer shownFor_;
    QTimer frames_;
};
