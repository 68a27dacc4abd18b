#pragma once

// A label with the pointing hand that answers a click, or the Enter key, as a link does.

#include <QLabel>

class LinkLabel : public QLabel {
    Q_OBJECT

public:
    LinkLabel(const QString &text, QWidget *parent);

signals:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
