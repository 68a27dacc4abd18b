#include "tests/shell/window_test.h"

#include <QClipboard>
#include <QSettings>
#include <QTreeWidgetItemIterator>

void ForgetAllRuns() { QSettings().clear(); }

void ForgetAllPeople() {
    modReadings::profile = {};
    modReadings::store = {};
}

QByteArray ContentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

QList<QStringList> TableRows(const QString &name) {
    QStringList lines =
        QString::fromUtf8(ContentOf(QStringLiteral(SHELL_TESTS) + u'/' + name)).split(u'\n');
    lines.removeFirst();
    lines.removeAll(QString());
    QList<QStringList> rows;
    for (const QString &line : lines)
        rows << line.split(u',');
    return rows;
}

WindowTest::WindowTest() {
    if (!form.Form_Load())
        qFatal("the program was refused");
    form.show();
}

void WindowTest::Activate() {
    form.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&form));
}

void WindowTest::init() {
    Activate();
    ForgetAllPeople();
    clock.Set(usualDay);
    RTB.ShowReport({});
    form.TV_NodeClick(Node(u"Reset"_s));
    TV.collapseAll();
    Node(u"User Information"_s)->setExpanded(true);
    TV.setCurrentItem(Node(u"Reset"_s));
    for (ImageButton *button : form.findChildren<ImageButton *>())
        button->TurnPlain();
    QApplication::clipboard()->clear();
    browser.Taken();
}

void WindowTest::cleanup() {
    const QString trouble = dialogs.Trouble();
    QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
}

QTreeWidgetItem *WindowTest::Node(const QString &caption) const {
    for (QTreeWidgetItemIterator node(form.TV); *node != nullptr; ++node)
        if ((*node)->text(0) == caption)
            return *node;
    qFatal("no node %s", qPrintable(caption));
    return nullptr;
}

void WindowTest::ClickNode(const QString &caption) {
    QTreeWidgetItem *node = Node(caption);
    TV.scrollToItem(node); // opens its branch
    const QRect place = TV.visualItemRect(node) & TV.viewport()->rect();
    if (place.isEmpty())
        qFatal("the node %s cannot be clicked", qPrintable(caption));
    QTest::mouseClick(TV.viewport(), Qt::LeftButton, {}, place.center());
}

void WindowTest::Click(QWidget *control) {
    const QPoint middle = control->rect().center();
    if (form.childAt(control->mapTo(&form, middle)) != control)
        qFatal("%s is not in sight", qPrintable(control->objectName()));
    QTest::mouseClick(control, Qt::LeftButton, {}, middle);
}

void WindowTest::MoveTo(QWidget *control, QPointF point) {
    QMouseEvent move(QEvent::MouseMove, point, control->mapToGlobal(point), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(control, &move);
}

void WindowTest::Enter(const QString &first, const QString &middle, const QString &last,
                       const QString &month, int day, int year) {
    const auto type = [](QLineEdit *box, const QString &name) {
        box->clear();
        QTest::keyClicks(box, name);
    };
    type(input.txtFirstName, first);
    type(input.txtMiddleName, middle);
    type(input.txtLastName, last);
    input.cboMonth->setCurrentText(month);
    input.cboDate->setCurrentText(QString::number(day));
    input.cboYear->setCurrentText(QString::number(year));
}

void WindowTest::ProceedWithSomebody() {
    EnterSomebody();
    Proceed();
}

std::u16string WindowTest::ReportText() const {
    return RTB.toPlainText().replace(u'\n', u"\r\n"_s).toStdU16String();
}
