#pragma once

// picMain, the page that fills the window: the night sky with the wordmark, the web
// address, and everything that stands on them.

#include <QWidget>

class MainPage : public QWidget {
    Q_OBJECT

public:
    explicit MainPage(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap sky_; ///< drawn for the resolution of the latest paint
};
