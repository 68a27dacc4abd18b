#pragma once

// A picture that is a button. It lights up while the mouse is over it, in the manner of a
// link: the mouse is captured when it enters and released by the first move outside the
// picture, and that is when the picture turns plain again.

#include <QAbstractButton>

class ImageButton : public QAbstractButton {
    Q_OBJECT

public:
    /// `plain` is the position in the image list of the picture that the button begins with.
    ImageButton(int plain, const QString &name, QWidget *parent);

    /// The position of the image now shown.
    int Picture() const { return picture_; }
    /// Shows the image at `position`.
    void SetPicture(int position);

    /// Whether all moves of the mouse come here.
    bool HasCapture() const;
    /// From now on all moves of the mouse come here, also those outside the button.
    void SetCapture();
    void ReleaseCapture();

    /// Releases the mouse and shows the plain image. For the cases in which the button loses
    /// the mouse without a move: a page covers it, or another window opens.
    void TurnPlain();

signals:
    /// The mouse moved to this point, in logical pixels from the button's top left corner.
    /// With the mouse captured the point may lie outside.
    void mouseMove(qreal X, qreal Y);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    const int plain_;
    int picture_;
    bool captured_ = false;
};

/// What a move of the mouse does to any of the image buttons: outside, the mouse is
/// released and the image at position `plain` shown; inside, the mouse is captured and the
/// image at `hover` shown, once. A point exactly on the far edge counts as inside.
void ImageMouseMove(ImageButton *button, int plain, int hover, qreal X, qreal Y);
