#include "tests/shell/child_process.h"
#include "tests/shell/program.h"

#include <QCloseEvent>
#include <QTimer>
#include <QWindow>

#include <optional>

// Every way out of the program, and the page that it says goodbye with.

namespace {

/// Runs the program as its main function does, leaves it in one of the ways, and tells
/// the parent which pages it opened.
int RunAndLeave(const QString &way) {
    BrowserLog browser;
    Dialogs dialogs;
    frmMain form;
    if (!form.Form_Load())
        return 99;
    form.show();
    QTimer::singleShot(0, &form, [&] {
        if (way == QLatin1StringView("menu")) {
            form.mnuExit->trigger();
        } else if (way == QLatin1StringView("close button")) {
            form.windowHandle()->close();
        } else {
            dialogs.PlanToPress(QMessageBox::Yes);
            form.picExit->click();
        }
    });
    const int code = QApplication::exec();
    QStringList pages;
    for (const QUrl &page : browser.Taken())
        pages << page.path();
    TellParent(pages.join(u' ') + QStringLiteral("|") + dialogs.Trouble());
    return code;
}

} // namespace

class ExitTest : public QObject {
    Q_OBJECT

public:
    explicit ExitTest(const TemporaryHome &) {}

private:
    std::optional<Program> program_;

    static QList<QUrl> ThankYou() {
        return {PageOfSite(QStringLiteral("/thankyou-for-using-orravane.php"))};
    }

private slots:
    // The tests go on when a window is gone.
    void initTestCase() { QGuiApplication::setQuitOnLastWindowClosed(false); }
    void init() { program_.emplace(); }
    void cleanup() { program_.reset(); }

    void TheExitImageAsks() {
        SeenMessage seen;
        program_->dialogs.PlanToPress(QMessageBox::No, &seen);
        program_->Click(program_->form.picExit);
        VERIFY_DIALOGS(program_->dialogs);
        COMPARE_MESSAGE(seen, QMessageBox::Warning,
                        QStringLiteral("Are You Sure You Want to Exit Orravane?"),
                        QMessageBox::Yes | QMessageBox::No);
        QVERIFY(seen.formWasVisible);
    }

    void NoChangesNothing_data() {
        QTest::addColumn<bool>("byEscape");
        QTest::newRow("the button") << false;
        QTest::newRow("Escape") << true;
    }
    void NoChangesNothing() {
        QFETCH(bool, byEscape);
        program_->ProceedWithSomebody();
        const std::u16string report = program_->ReportText();
        if (byEscape)
            program_->dialogs.PlanToEscape();
        else
            program_->dialogs.PlanToPress(QMessageBox::No);
        program_->Click(program_->form.picExit);
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(program_->browser.Taken().isEmpty());
        QVERIFY(program_->form.isVisible());
        QVERIFY(!program_->form.IsUnloaded());
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
        QCOMPARE(program_->ReportText(), report);
    }

    void YesUnloads() {
        program_->dialogs.PlanToPress(QMessageBox::Yes);
        program_->Click(program_->form.picExit);
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(!program_->form.isVisible());
        QVERIFY(program_->form.IsUnloaded());
        QCOMPARE(program_->browser.Taken(), ThankYou());
    }

    void TheMenuUnloadsWithoutAQuestion() {
        program_->form.mnuExit->trigger();
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(!program_->form.isVisible());
        QCOMPARE(program_->browser.Taken(), ThankYou());
    }

    void TheCloseButtonUnloadsWithoutAQuestion() {
        program_->form.windowHandle()->close(); // what the window system asks for
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(!program_->form.isVisible());
        QCOMPARE(program_->browser.Taken(), ThankYou());
    }

    void ThePageOpensOnceHoweverOftenTheWindowIsClosed() {
        program_->form.close();
        program_->form.close();
        program_->form.mnuExit->trigger();
        QCloseEvent late; // on its way while the window went
        QApplication::sendEvent(&program_->form, &late);
        QCOMPARE(program_->browser.Taken(), ThankYou());
    }

    void TheEndOfTheWindowOpensNoFurtherPage() {
        program_.reset();
        const modReadings::FixedClock clock(usualDay);
        BrowserLog browser;
        {
            frmMain form;
            QVERIFY(form.Form_Load());
            form.show();
            form.close();
            QCOMPARE(browser.Taken(), ThankYou());
        }
        QVERIFY(browser.Taken().isEmpty());
    }

    void TheProgramEndsOnEveryWayOut_data() {
        QTest::addColumn<QString>("way");
        for (const char *way : {"menu", "close button", "exit image"})
            QTest::newRow(way) << QString::fromLatin1(way);
    }
    void TheProgramEndsOnEveryWayOut() {
        QFETCH(QString, way);
        program_.reset(); // there can be only one
        ChildProcess child(way);
        QCOMPARE(child.Line(), QStringLiteral("/thankyou-for-using-orravane.php|"));
        QCOMPARE(child.WaitForEnd(), 0);
    }
};

ORRAVANE_TEST_PROGRAM_WITH_CHILD(ExitTest, RunAndLeave)

#include "exit_test.moc"
