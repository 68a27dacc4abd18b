#pragma once

// A drop-down list in the look of the pages, such as those of the birth date. Its text cannot
// be typed into.

#include <QComboBox>

class DateList : public QComboBox {
    Q_OBJECT

public:
    explicit DateList(QWidget *parent);

    /// Appends the twelve months, by the system's own full names.
    void AddMonths();

    /// Appends the whole numbers from `first` to `last`, such as days or years.
    void AddNumbers(int first, int last);

protected:
    void paintEvent(QPaintEvent *event) override;
};
