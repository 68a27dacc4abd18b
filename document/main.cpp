#include "document/document_window.h"
#include "shell/app.h"
#include "shell/display_message.h"

#include <QApplication>
#include <QIcon>

#include <optional>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[]) {
    std::optional<DisplayMessage> noDisplay(std::in_place, "orravane-document");
    QApplication application(argc, argv);
    noDisplay.reset();
    App::Identify(u"orravane-document"_s);
    QIcon icon;
    for (const auto &size : {u"16"_s, u"32"_s, u"64"_s})
        icon.addFile(u":/document/%1.png"_s.arg(size));
    QApplication::setWindowIcon(icon);

    DocumentWindow window;
    window.show();
    return QApplication::exec();
}
