// faults_steps save FILE | print
// What the window does when Save or Print is clicked, once, for a script that has the system
// fail meanwhile. Saving goes through the real dialog: the name of the file, Save, and Yes to
// the question whether a file is to be replaced. Says "ready" and waits for a byte on standard
// input just before it presses Save, or before it prints.
//
// Ends with 0 where nobody was told anything, and with 10 where a message came up; the dialog is
// then cancelled.

#include "report/printing.h"
#include "report/saving.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTextDocument>
#include <QTimer>

#include <cstring>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int toldSomething = 10;

void AwaitScript() {
    char byte = 0;
    if (write(STDOUT_FILENO, "ready\n", 6) != 6 || read(STDIN_FILENO, &byte, 1) != 1)
        _exit(99);
}

/// About 50 KiB of RTF, as a whole report has.
modReadings::Report Report() {
    modReadings::Report report;
    for (int topic = 0; topic < 22; ++topic) {
        modReadings::BoldHeading(report, u"Your number is: 7");
        modReadings::AppendBlock(report,
                                 std::u16string(2000, static_cast<char16_t>(u'a' + topic % 26)), 2);
    }
    return report;
}

class User {
public:
    explicit User(QString file) : file_(std::move(file)) { LookAgain(); }
    bool WasTold() const { return wasTold_; }

private:
    void LookAgain() {
        QTimer::singleShot(0, [this] { Look(); });
    }

    void Look() {
        LookAgain();
        QWidget *front = QApplication::activeModalWidget();
        if (auto *question = qobject_cast<QMessageBox *>(front)) {
            QAbstractButton *yes = question->button(QMessageBox::Yes);
            wasTold_ = wasTold_ || yes == nullptr;
            (yes != nullptr ? yes : question->button(QMessageBox::Ok))->click();
        } else if (auto *dialog = qobject_cast<QFileDialog *>(front)) {
            if (std::exchange(hasPressed_, true)) { // still there: the name was refused
                dialog->reject();
                return;
            }
            dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(file_);
            AwaitScript();
            dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
        }
    }

    QString file_;
    bool hasPressed_ = false;
    bool wasTold_ = false;
};

} // namespace

int main(int argc, char *argv[]) {
    const QApplication application(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], "save") == 0) {
        const User user(QString::fromLocal8Bit(argv[2]));
        SaveReport(Report(), {"Verdana", 18}, u"Orravane"_s, nullptr);
        _exit(user.WasTold() ? toldSomething : 0);
    }
    if (argc == 2 && std::strcmp(argv[1], "print") == 0) {
        QTextDocument document;
        document.setPlainText(QString::fromStdU16String(modReadings::TextOf(Report())));
        AwaitScript();
        PrintDocument(document);
        _exit(0);
    }
    return 2;
}
