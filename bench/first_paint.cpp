// The program from its start to its first paint, as a process to be timed from outside.

#include "bench/quit_after_paint.h"
#include "shell/app.h"
#include "shell/frm_main.h"
#include "shell/main_page.h"

#include <QApplication>

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    App::Identify();
    frmMain form;
    if (!form.Form_Load())
        return 1;
    QuitAfterPaint quit(form.picMain);
    form.show();
    return QApplication::exec();
}
