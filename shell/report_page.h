#pragma once

// Picture2, the page that shows a report and lets it out.

#include <QWidget>

class ImageButton;
class RichTextBox;

class ReportPage : public QWidget {
    Q_OBJECT

public:
    explicit ReportPage(QWidget *parent);

    RichTextBox *RTB;
    ImageButton *picPrint;
    ImageButton *picSave;
};
