#pragma once

// A box to tick, in the look of the pages.

#include <QCheckBox>

class CheckBox : public QCheckBox {
    Q_OBJECT

public:
    using QCheckBox::QCheckBox;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool hitButton(const QPoint &point) const override;
};
