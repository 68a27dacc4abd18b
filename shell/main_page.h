#pragma once

// picMain, the page that fills the window: the night sky with the wordmark, the web
// address, and everything that stands on them.

#include <QPixmap>
#include <QWidget>

class MainPage : public QWidget {
    Q_OBJECT

public:
    explicit MainPage(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// The picture at `size` device pixels, `ratio` of them to the logical pixel.
    QPixmap DrawSky(QSize size, qreal ratio) const;

    QPixmap sky_; ///< drawn for the resolution of the latest paint
};
