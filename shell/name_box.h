#pragma once

// A text box that lets its form look at, and change, each character key before the box
// takes it.

#include <QLineEdit>

class NameBox : public QLineEdit {
    Q_OBJECT

public:
    explicit NameBox(QWidget *parent);

signals:
    /// A key that types one character is about to be taken. The receiver may change it
    /// in place. Pasted and composed text does not come this way.
    void keyPress(qint16 &KeyAscii);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
