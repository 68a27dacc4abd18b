#pragma once

// A text box that lets its form look at, and change, each character that is typed before
// the box takes it.

#include <QLineEdit>

class NameBox : public QLineEdit {
    Q_OBJECT

public:
    explicit NameBox(QWidget *parent);

signals:
    /// A character is about to be taken, from a key or from an input method, such as a
    /// keyboard on the screen. The receiver may change it in place. Pasted text does not
    /// come this way, nor does what an input method still composes.
    void keyPress(qint16 &KeyAscii);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    /// `typed`, each character as the receivers of keyPress() leave it.
    QString Filtered(QString typed);

    bool composing_ = false; ///< an input method shows text that it has not committed
};
