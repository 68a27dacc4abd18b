#pragma once

// A button with a word on it, in the look of the window's own image buttons.

#include <QPushButton>

class CommandButton : public QPushButton {
    Q_OBJECT

public:
    CommandButton(const QString &text, QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
