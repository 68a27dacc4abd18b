#include "shell/report_page.h"

#include "shell/geometry.h"
#include "shell/image_button.h"
#include "shell/rich_text_box.h"

ReportPage::ReportPage(QWidget *parent) : Page(parent) {
    RTB = Placed(new RichTextBox(this), "RTB", PlaceOf("RTB"));
    picPrint = Placed(new ImageButton(5, 6, tr("Print"), this), "picPrint", PlaceOf("picPrint"));
    picSave = Placed(new ImageButton(9, 10, tr("Save"), this), "picSave", PlaceOf("picSave"));
}
