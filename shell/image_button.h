#pragma once

// A picture that is a button. It lights up while the mouse is over it, in the manner of a
// link: the mouse is captured when it enters and released by the first move outside the
// picture, and that is when the picture turns plain again.

#include <QAbstractButton>

class ImageButton : public QAbstractButton {
    Q_OBJECT

public:
    /// `plain` and `hover` are positions in the image list.
    ImageButton(int plain, int hover, const QString &name, QWidget *parent);

    /// The position of the image now shown.
    int ImagePosition() const { return shown_; }

    /// Releases the mouse and turns plain: for what takes the button away from under the
    /// mouse without a move of it.
    void LetGo();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    bool HasCapture() const;
    void SetCapture();
    void ReleaseCapture();
    void ShowImage(int position);

    const int plain_;
    const int hover_;
    int shown_;
    bool captured_ = false;
};
