#pragma once

// Picture2, the page that shows a report and offers to print and save it.

#include "shell/page.h"

class ImageButton;
class RichTextBox;

class ReportPage : public Page {
    Q_OBJECT

public:
    explicit ReportPage(QWidget *parent);

    RichTextBox *RTB;
    ImageButton *picPrint;
    ImageButton *picSave;
};
