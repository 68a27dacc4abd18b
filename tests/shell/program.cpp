#include "tests/shell/program.h"

#include "core/reading_store.h"
#include "core/user_profile.h"

#include <QSettings>
#include <QTreeWidgetItemIterator>

void ForgetAllRuns() { QSettings().clear(); }

void ForgetAllPeople() {
    modReadings::profile = {};
    modReadings::store = {};
}

Program::Program() {
    ForgetAllRuns();
    ForgetAllPeople();
    if (!form.Form_Load())
        qFatal("the program was refused");
    form.show();
    if (!QTest::qWaitForWindowActive(&form))
        qFatal("the window does not become active");
}

QTreeWidgetItem *Program::Node(const QString &caption) const {
    for (QTreeWidgetItemIterator node(form.TV); *node != nullptr; ++node)
        if ((*node)->text(0) == caption)
            return *node;
    qFatal("no node %s", qPrintable(caption));
    return nullptr;
}

void Program::ClickNode(const QString &caption) {
    QTreeWidgetItem *node = Node(caption);
    TV.scrollToItem(node); // opens its branch
    const QRect place = TV.visualItemRect(node) & TV.viewport()->rect();
    if (place.isEmpty())
        qFatal("the node %s cannot be clicked", qPrintable(caption));
    QTest::mouseClick(TV.viewport(), Qt::LeftButton, {}, place.center());
}

void Program::Click(QWidget *control) {
    const QPoint middle = control->rect().center();
    if (form.childAt(control->mapTo(&form, middle)) != control)
        qFatal("%s is not in sight", qPrintable(control->objectName()));
    QTest::mouseClick(control, Qt::LeftButton, {}, middle);
}

void Program::Enter(const QString &first, const QString &middle, const QString &last,
                    const QString &month, const QString &day, const QString &year) {
    const auto type = [](QLineEdit *box, const QString &name) {
        box->clear();
        QTest::keyClicks(box, name);
    };
    type(input.txtFirstName, first);
    type(input.txtMiddleName, middle);
    type(input.txtLastName, last);
    input.cboMonth->setCurrentText(month);
    input.cboDate->setCurrentText(day);
    input.cboYear->setCurrentText(year);
}

void Program::EnterSomebody() {
    Enter(QStringLiteral("oak"), {}, QStringLiteral("river"), QStringLiteral("December"),
          QStringLiteral("29"), QStringLiteral("1985"));
}

void Program::Proceed() { Click(input.picProceed); }

void Program::ProceedWithSomebody() {
    EnterSomebody();
    Proceed();
}

std::u16string Program::ReportText() const {
    return RTB.toPlainText().replace(u'\n', QStringLiteral("\r\n")).toStdU16String();
}
