#include "shell/app.h"
#include "shell/display_message.h"
#include "shell/frm_main.h"

#include <QApplication>

#include <optional>

int main(int argc, char *argv[]) {
    std::optional<DisplayMessage> noDisplay(std::in_place, "orravane");
    QApplication application(argc, argv);
    noDisplay.reset();
    App::Identify();

    frmMain form;
    if (!form.Form_Load())
        return 0;
    form.show();
    return QApplication::exec();
}
