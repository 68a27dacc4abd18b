#include "site.h"
#include "tests/shell/child_process.h"
#include "tests/shell/window_test.h"

#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QDir>
#include <QDirIterator>
#include <QSettings>
#include <QTimer>
#include <QWindow>

#include <optional>

// The start sequence: the second instance, the update question, the month names of the
// system's language. And every way out, with the page that says goodbye.

namespace {

/// A run of the program that may be turned away, on a clock that stands on `today`.
struct Run {
    explicit Run(std::chrono::year_month_day today = usualDay) : clock(today) {}

    modReadings::FixedClock clock;
    BrowserLog browser;
    Dialogs dialogs;
    frmMain form;
};

constexpr std::chrono::year_month_day DaysFromUsual(int days) {
    return std::chrono::sys_days(usualDay) + std::chrono::days(days);
}

QString StoredDay() { return QSettings().value(u"LastUpdate"_s).toString().left(10); }

const QStringList thankYou{u"/thankyou-for-using-orravane.php"_s};

/// What a start at a day asked, and what came of it.
struct Outcome {
    bool loaded = false;
    QString message; ///< empty where none came up
    QStringList pages;
};

/// A start with this answer to the one message that may come up; Cancel where none may.
Outcome StartAt(std::chrono::year_month_day today,
                QMessageBox::StandardButton answer = QMessageBox::Cancel) {
    Outcome outcome;
    Run run(today);
    if (answer != QMessageBox::Cancel)
        outcome.message =
            run.dialogs.MessageOf([&] { outcome.loaded = run.form.Form_Load(); }, answer);
    else
        outcome.loaded = run.form.Form_Load();
    outcome.pages = run.browser.Taken();
    outcome.message += run.dialogs.Trouble();
    return outcome;
}

/// Puts a file in the place of a folder while it lives.
class FileInPlaceOf {
public:
    explicit FileInPlaceOf(const QString &folder) : folder_(folder) {
        QDir(folder).removeRecursively();
        QFile file(folder);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(folder));
    }
    ~FileInPlaceOf() {
        QFile::remove(folder_);
        QDir().mkpath(folder_);
    }
    Q_DISABLE_COPY_MOVE(FileInPlaceOf)

private:
    const QString folder_;
};

// --- What the child processes do

/// A first instance: starts, then answers questions about itself until its input ends.
int BeFirstInstance() {
    BrowserLog browser;
    frmMain form;
    TellParent(form.Form_Load() ? u"loaded"_s : u"refused"_s);
    form.show();
    while (!AskParent().isEmpty()) {
        QApplication::processEvents();
        TellParent(u"%1 %2 %3"_s.arg(form.isVisible() ? u"visible"_s : u"hidden"_s,
                                     form.FrontPage()->objectName(), browser.Taken().join(u' ')));
    }
    return 0;
}

/// Tells the months of the list, and what becomes of somebody born in the last of them.
int TellMonths() {
    Run run;
    run.form.Form_Load();
    InputPage &input = *run.form.Picture1;
    QStringList months;
    for (int index = 0; index < input.cboMonth->count(); ++index)
        months << input.cboMonth->itemText(index);
    TellParent(months.join(u' '));

    input.txtFirstName->setText(u"OAK"_s);
    input.txtLastName->setText(u"RIVER"_s);
    input.cboDate->setCurrentIndex(28); // 29
    input.cboMonth->setCurrentIndex(11);
    input.cboYear->setCurrentIndex(85); // 1985
    run.form.cmdNext_Click();
    TellParent(u"%1 %2"_s.arg(QStringView(modReadings::profile.BirthMonth))
                   .arg(modReadings::store.PersonalMonthNumber));
    return 0;
}

/// Runs the program as its main function does, leaves it in one of the ways, and tells
/// which pages it opened.
int RunAndLeave(const QString &way) {
    Run run;
    if (!run.form.Form_Load())
        return 99;
    run.form.show();
    QTimer::singleShot(0, &run.form, [&] {
        if (way == u"menu") {
            run.form.mnuExit->trigger();
        } else if (way == u"close button") {
            run.form.windowHandle()->close(); // what the window system asks for
        } else {
            run.dialogs.PlanToPress(QMessageBox::Yes);
            run.form.picExit->click();
        }
    });
    const int code = QApplication::exec();
    TellParent(run.browser.Taken().join(u' ') + run.dialogs.Trouble());
    return code;
}

int RunChild(const QString &role) {
    return role == u"months"           ? TellMonths()
           : role == u"first instance" ? BeFirstInstance()
                                       : RunAndLeave(role);
}

} // namespace

class StartAndExitTest : public QObject {
    Q_OBJECT

    static QStringList Locks() {
        QStringList locks;
        for (QDirIterator files(TemporaryHome::Path(), {u"*.lock"_s}, QDir::Files,
                                QDirIterator::Subdirectories);
             files.hasNext();)
            locks << files.next();
        return locks;
    }

    /// A child that has started as the first instance.
    static std::unique_ptr<ChildProcess> FirstInstance() {
        auto child = std::make_unique<ChildProcess>(u"first instance"_s);
        if (child->Line() != u"loaded")
            qFatal("the first instance does not start");
        return child;
    }

    const QString question_ =
        u"Warning, Orravane: Do You Wish To Update The Software ? [No, Yes]"_s;
    const QString refusal_ = u"Critical, Orravane: Orravane Is Already Running [OK]"_s;

private slots:
    void initTestCase() { QGuiApplication::setQuitOnLastWindowClosed(false); }
    void init() {
        ForgetAllRuns();
        ForgetAllPeople();
    }

    // --- An ordinary start

    void TheFirstThingSeenIsTheMainPageWithTreeAndEmptyInputPage() {
        { // nothing is remembered of a run before
            Run before;
            QVERIFY(before.form.Form_Load());
            before.form.Picture1->txtFirstName->setText(u"ANN"_s);
            before.form.Picture1->txtLastName->setText(u"LEE"_s);
            before.form.Picture1->cboYear->setCurrentIndex(85);
            before.form.cmdNext_Click();
            before.form.close();
        }
        Run run;
        QVERIFY(run.form.Form_Load());
        QVERIFY(!run.form.isVisible()); // it is main that shows it
        run.form.show();
        QVERIFY(QTest::qWaitForWindowActive(&run.form));

        const auto seenAt = [&](int x, int y) { return run.form.centralWidget()->childAt(x, y); };
        QCOMPARE(seenAt(1, 1), run.form.picMain);
        QVERIFY(run.form.TV->isAncestorOf(seenAt(100, 200)));       // on the left
        QVERIFY(run.form.Picture1->isAncestorOf(seenAt(400, 120))); // on the right
        const QObjectList stack = run.form.picMain->children();     // the last is on top
        QVERIFY(stack.indexOf(run.form.Picture1) > stack.indexOf(run.form.Picture2));
        QVERIFY(stack.indexOf(run.form.Picture2) > stack.indexOf(run.form.Picture3));
        QCOMPARE(run.form.FrontPage(), run.form.Picture1);

        const InputPage &input = *run.form.Picture1;
        for (const QLineEdit *box : {input.txtFirstName, input.txtMiddleName, input.txtLastName})
            QCOMPARE(box->text(), QString());
        QCOMPARE(input.cboMonth->currentText(), u"January"_s);
        QCOMPARE(input.cboDate->currentText(), u"1"_s);
        QCOMPARE(input.cboYear->currentText(), u"1900"_s);
        QVERIFY(input.txtFirstName->hasFocus());
        QCOMPARE(run.form.Picture2->RTB->toPlainText(), QString());
        for (const ImageButton *button : run.form.findChildren<ImageButton *>())
            QCOMPARE(button->Picture() % 2, 1); // the plain ones have the odd places

        const TopicTreeView &TV = *run.form.TV;
        QCOMPARE(TV.selectedItems(), QList{TV.Node(modReadings::NodePosition::U2)});
        QCOMPARE(TV.selectedItems()[0]->text(0), u"Reset"_s);
        QVERIFY(TV.topLevelItem(0)->isExpanded());
        QVERIFY(!TV.topLevelItem(1)->isExpanded());
        QVERIFY(!TV.topLevelItem(2)->isExpanded());

        QCOMPARE(run.browser.Taken(), QStringList());
        QCOMPARE(run.dialogs.Trouble(), QString());
        QVERIFY(!run.form.IsUnloaded());
        QCOMPARE(QSettings().allKeys(), QStringList{u"LastUpdate"_s});
        QVERIFY(QSettings().fileName().startsWith(TemporaryHome::Path()));
        QVERIFY(QFile::exists(QSettings().fileName()));
    }

    // --- The update question

    void LessThanFifteenDaysAskAndStoreNothing() {
        const Outcome first = StartAt(usualDay); // the first run asks nothing and stores the day
        QVERIFY(first.loaded);
        QCOMPARE(first.message, QString());
        QCOMPARE(first.pages, QStringList());
        QCOMPARE(StoredDay(), u"2026-11-16"_s);
        const QVariant stored = QSettings().value(u"LastUpdate"_s);
        for (const int days : {0, 1, 14, -1, -14}) {
            const Outcome outcome = StartAt(DaysFromUsual(days));
            QVERIFY(outcome.loaded);
            QCOMPARE(outcome.message, QString());
            QCOMPARE(QSettings().value(u"LastUpdate"_s), stored);
        }
    }

    void FifteenDaysAsk() {
        for (const int days : {15, 400, -15, -400}) {
            for (const QMessageBox::StandardButton answer :
                 {QMessageBox::Yes, QMessageBox::No, QMessageBox::NoButton}) { // the last: Escape
                ForgetAllRuns();
                StartAt(usualDay);
                const Outcome outcome = StartAt(DaysFromUsual(days), answer);
                QCOMPARE(outcome.message, question_);
                QVERIFY(outcome.loaded);
                QCOMPARE(outcome.pages, answer == QMessageBox::Yes
                                            ? QStringList{QString::fromLatin1(updatePath)}
                                            : QStringList());
                // Renewed with either answer: the next question comes 15 days after this day.
                QCOMPARE(StoredDay(), QDate(2026, 11, 16).addDays(days).toString(Qt::ISODate));
            }
        }
    }

    void OnlyWholeDaysCount_data() {
        QTest::addColumn<bool>("asks");
        // The time of the day plays no part on either side.
        QTest::newRow("2026-11-01T23:59:59") << true; // 15 days ago
        QTest::newRow("2026-11-01T00:00:00") << true;
        QTest::newRow("2026-11-02T00:00:00") << false;
        QTest::newRow("2026-11-02T23:59:59") << false;
        QTest::newRow("2026-12-01T00:00:00") << true; // 15 days ahead
        QTest::newRow("2026-11-30T23:59:59") << false;
    }
    void OnlyWholeDaysCount() {
        QFETCH(bool, asks);
        QSettings().setValue(u"LastUpdate"_s, QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(StartAt(usualDay, asks ? QMessageBox::No : QMessageBox::Cancel).message,
                 asks ? question_ : QString());
    }

    void AValueThatIsNoDateCountsAsAFirstRun() {
        for (const QVariant &stored :
             {QVariant(u"the day before yesterday"_s), QVariant(u"2026-02-31T10:00:00"_s),
              QVariant(12), QVariant(QStringList{u"a"_s, u"b"_s}), QVariant(QString())}) {
            QSettings().setValue(u"LastUpdate"_s, stored);
            const Outcome outcome = StartAt(usualDay);
            QCOMPARE(outcome.message, QString());
            QVERIFY(outcome.loaded);
            QCOMPARE(StoredDay(), u"2026-11-16"_s);
        }
    }

    void SettingsThatCannotBeWrittenDoNotStopTheStart() {
        const FileInPlaceOf folder(QFileInfo(QSettings().fileName()).path());
        const Outcome outcome = StartAt(usualDay);
        QCOMPARE(outcome.message, QString());
        QVERIFY(outcome.loaded);
    }

    // --- The second instance

    void ASecondInstanceIsTurnedAwayAndTheFirstOneIsUntouched() {
        const auto first = FirstInstance();
        QSettings().setValue(u"LastUpdate"_s, u"2020-01-01T00:00:00"_s); // asks nothing about it
        {
            Run second;
            bool formWasVisible = false;
            second.dialogs.Plan([&](QDialog &dialog) {
                formWasVisible = second.form.isVisible();
                dialog.close();
            });
            QVERIFY(!second.form.Form_Load());
            QCOMPARE(second.dialogs.Trouble(), QString());
            QVERIFY(!formWasVisible);
            QVERIFY(!second.form.isVisible());
            QVERIFY(second.form.IsUnloaded());
            QCOMPARE(second.browser.Taken(), thankYou);
            second.form.close(); // it has been unloaded already
            QCOMPARE(second.browser.Taken(), QStringList());
        }
        const Outcome third = StartAt(usualDay, QMessageBox::Ok);
        QCOMPARE(third.message, refusal_);
        QVERIFY(!third.loaded);
        QCOMPARE(third.pages, thankYou);
        QCOMPARE(StoredDay(), u"2020-01-01"_s);

        first->Say(u"how are you"_s);
        QCOMPARE(first->Line(), u"visible Picture1"_s); // and no page opened
        QCOMPARE(first->WaitForEnd(), 0);
        QSettings().remove(u"LastUpdate"_s);
        QVERIFY(StartAt(usualDay).loaded); // one that has ended is no reason to turn away
    }

    void TheLockOfAKilledInstanceIsNoReasonToTurnAway() {
        FirstInstance()->Kill();
        QCOMPARE(Locks().size(), 2); // it had no chance to tidy up
        const Outcome outcome = StartAt(usualDay);
        QVERIFY(outcome.loaded);
        QCOMPARE(outcome.message, QString());
        QCOMPARE(outcome.pages, QStringList());
    }

    void AnInstanceThatIsLockedForDaysIsStillRunning() {
        const auto first = FirstInstance();
        QCOMPARE(Locks().size(), 2);
        for (const QString &path : Locks()) {
            QFile lock(path);
            QVERIFY(lock.open(QIODevice::ReadWrite));
            QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addDays(-100),
                                     QFileDevice::FileModificationTime));
        }
        QCOMPARE(StartAt(usualDay, QMessageBox::Ok).message, refusal_);
    }

    void APlaceWithoutRoomForALockIsNoReasonToTurnAwayTheFirstAndNoneToLetInTheSecond() {
        const FileInPlaceOf data(TemporaryHome::PathOf(u"data"_s));
        const Outcome outcome = StartAt(usualDay);
        QCOMPARE(outcome.message, QString());
        QVERIFY(outcome.loaded);
        const auto first = FirstInstance();
        QCOMPARE(StartAt(usualDay, QMessageBox::Ok).message, refusal_);
    }

    void WhatStandsInTheLockFilePlaysNoPart() {
        QVERIFY(StartAt(usualDay).loaded); // it is there now
        const QStringList contents{
            QString(), u"junk"_s, u"4711\norravane\nanother-machine\n"_s,
            u"%1\n%2\n%3\n"_s.arg(QCoreApplication::applicationPid())
                .arg(QFileInfo(QCoreApplication::applicationFilePath()).fileName(),
                     QSysInfo::machineHostName())};
        for (const QString &content : contents) {
            for (const QString &path : Locks()) {
                QFile lock(path);
                QVERIFY(lock.open(QIODevice::WriteOnly));
                lock.write(content.toUtf8());
            }
            const Outcome outcome = StartAt(usualDay);
            QCOMPARE(outcome.message, QString());
            QVERIFY(outcome.loaded);
            const auto first = FirstInstance();
            QCOMPARE(StartAt(usualDay, QMessageBox::Ok).message, refusal_);
            for (const QString &path : Locks())
                QCOMPARE(ContentOf(path), content.toUtf8());
        }
    }

    // --- The system's language

    void WhoTouchesNoDateIsBornOnTheFirstOfJanuary1900() {
        Run run;
        QVERIFY(run.form.Form_Load());
        run.form.Picture1->txtFirstName->setText(u"ANN"_s);
        run.form.Picture1->txtLastName->setText(u"LEE"_s);
        run.form.cmdNext_Click();
        QCOMPARE(run.dialogs.Trouble(), QString()); // no message
        QCOMPARE(modReadings::profile.BirthDay, u"1"s);
        QCOMPARE(modReadings::profile.BirthMonth, u"January"s);
        QCOMPARE(modReadings::profile.BirthYear, u"1900"s);
        QCOMPARE(run.form.FrontPage(), run.form.Picture2);
    }

    void TheMonthsAreThoseOfTheSystemsLanguage_data() {
        QTest::addColumn<QStringList>("variables");
        QTest::addColumn<QString>("months");
        QTest::addColumn<QString>("reading");
        // 29 December 1985 on 16 November 2026. December counts 3: 2 + 3 + 2 + 1 = 8. In
        // any other language the month counts 0, which leaves 5.
        QTest::newRow("English") << QStringList{u"LC_ALL=en_US.UTF-8"_s}
                                 << u"January February March April May June July August September "
                                    "October November December"_s
                                 << u"December 8"_s;
        QTest::newRow("German") << QStringList{u"LC_ALL=de_DE.UTF-8"_s}
                                << u"Januar Februar M\u00E4rz April Mai Juni Juli August September "
                                   "Oktober November Dezember"_s
                                << u"Dezember 5"_s;
        QTest::newRow("French by LANG") // all months begin small, which is how they are written
            << QStringList{u"LC_ALL="_s, u"LANG=fr_FR.UTF-8"_s}
            << u"janvier f\u00E9vrier mars avril mai juin juillet ao\u00FBt "
               "septembre octobre novembre d\u00E9cembre"_s
            << u"d\u00E9cembre 5"_s;
        // The language of everything else has no say.
        QTest::newRow("German by LC_TIME alone")
            << QStringList{u"LC_ALL="_s, u"LANG=en_US.UTF-8"_s, u"LC_MESSAGES=fr_FR.UTF-8"_s,
                           u"LC_TIME=de_DE.UTF-8"_s}
            << u"Januar Februar M\u00E4rz April Mai Juni Juli August September "
               "Oktober November Dezember"_s
            << u"Dezember 5"_s;
        QTest::newRow("English by LC_TIME alone")
            << QStringList{u"LC_ALL="_s, u"LANG=de_DE.UTF-8"_s, u"LANGUAGE=de"_s,
                           u"LC_TIME=en_US.UTF-8"_s}
            << u"January February March April May June July August September "
               "October November December"_s
            << u"December 8"_s;
        QTest::newRow("Polish, the form without a day") // with one it would be "stycznia"
            << QStringList{u"LC_ALL=pl_PL.UTF-8"_s}
            << u"stycze\u0144 luty marzec kwiecie\u0144 maj czerwiec lipiec "
               "sierpie\u0144 wrzesie\u0144 pa\u017Adziernik listopad grudzie\u0144"_s
            << u"grudzie\u0144 5"_s;
    }
    void TheMonthsAreThoseOfTheSystemsLanguage() {
        QFETCH(QStringList, variables);
        QFETCH(QString, months);
        QFETCH(QString, reading);
        ChildProcess child(u"months"_s, variables);
        QCOMPARE(child.Line(), months);
        QCOMPARE(child.Line(), reading);
        QCOMPARE(child.WaitForEnd(), 0);
    }

    // --- The ways out

    void TheExitImageAsksAndNoChangesNothing() {
        Run run;
        QVERIFY(run.form.Form_Load());
        run.form.show();
        run.form.mnuAbout_Click();
        for (const auto answer : {QMessageBox::No, QMessageBox::NoButton}) { // and Escape
            QCOMPARE(run.dialogs.MessageOf([&] { run.form.picExit->click(); }, answer),
                     u"Warning, Orravane: Are You Sure You Want to Exit Orravane? [No, Yes]"_s);
            QCOMPARE(run.browser.Taken(), QStringList());
            QVERIFY(run.form.isVisible());
            QVERIFY(!run.form.IsUnloaded());
            QCOMPARE(run.form.FrontPage(), run.form.Picture3);
        }
    }

    void EnterIsYesAndEscapeIsNoOnEveryDesktop() {
        // Desktops differ in which of the two buttons comes first.
        for (const auto layout : {QDialogButtonBox::WinLayout, QDialogButtonBox::MacLayout,
                                  QDialogButtonBox::KdeLayout, QDialogButtonBox::GnomeLayout}) {
            qApp->setStyleSheet(u"QDialogButtonBox { button-layout: %1 }"_s.arg(layout));
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
                QSettings().setValue(u"LastUpdate"_s, u"2020-01-01T00:00:00"_s);
                const auto press = [key](QDialog &box) { QTest::keyClick(&box, key); };
                Run run;
                run.dialogs.Plan(press);
                QVERIFY(run.form.Form_Load());
                QCOMPARE(run.browser.Taken(), key == Qt::Key_Return
                                                  ? QStringList{QString::fromLatin1(updatePath)}
                                                  : QStringList());
                run.form.show();
                run.dialogs.Plan(press);
                run.form.picExit->click();
                QCOMPARE(run.form.isVisible(), key == Qt::Key_Escape);
                QCOMPARE(run.dialogs.Trouble(), QString());
            }
        }
        qApp->setStyleSheet(QString());
    }

    void ThePageOpensOnceHoweverOftenTheWindowIsClosed() {
        std::optional<Run> run(std::in_place);
        QVERIFY(run->form.Form_Load());
        run->form.show();
        run->form.close();
        QVERIFY(!run->form.isVisible());
        QVERIFY(run->form.IsUnloaded());
        run->form.close();
        run->form.mnuExit->trigger();
        QCloseEvent late; // on its way while the window went
        QApplication::sendEvent(&run->form, &late);
        QCOMPARE(run->browser.Taken(), thankYou);
        BrowserLog browser;
        run.reset(); // nor does the end of the window open one
        QCOMPARE(browser.Taken(), QStringList());
    }

    void TheProgramEndsOnEveryWayOut() {
        for (const QString &way : {u"menu"_s, u"close button"_s, u"exit image"_s}) {
            ChildProcess child(way); // which would tell of a question that nobody planned
            QCOMPARE(child.Line(), thankYou[0]);
            QCOMPARE(child.WaitForEnd(), 0);
        }
    }
};

ORRAVANE_TEST_PROGRAM_WITH_CHILD(StartAndExitTest, RunChild)

#include "start_and_exit_test.moc"
