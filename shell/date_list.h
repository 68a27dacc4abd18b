#pragma once

// A drop-down list of the birth date. Its text cannot be typed into.

#include <QComboBox>

class DateList : public QComboBox {
    Q_OBJECT

public:
    explicit DateList(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
