#include "shell/app.h"
#include "shell/frm_main.h"

#include <QApplication>

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    App::Identify();

    frmMain form;
    if (!form.Form_Load())
        return 0;
    form.show();
    return QApplication::exec();
}
