#include "shell/report_page.h"

#include "shell/geometry.h"
#include "shell/image_button.h"
#include "shell/rich_text_box.h"

ReportPage::ReportPage(QWidget *parent) : Page(parent) {
    RTB = Placed(new RichTextBox(this), At("RTB"));
    picPrint = Placed(new ImageButton(5, tr("Print"), this), At("picPrint"));
    picSave = Placed(new ImageButton(9, tr("Save"), this), At("picSave"));
}
