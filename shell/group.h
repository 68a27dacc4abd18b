#pragma once

// A group of the input page: a frame with its title in the upper edge.

#include <QGroupBox>

class Group : public QGroupBox {
    Q_OBJECT

public:
    Group(const QString &title, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
