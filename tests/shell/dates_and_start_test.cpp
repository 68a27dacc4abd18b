#include "core/reading_store.h"
#include "core/user_profile.h"
#include "site.h"
#include "tests/shell/child_process.h"
#include "tests/shell/program.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSettings>

#include <optional>

// The start sequence: the second instance, the update question, the month names of the
// system's language.

namespace {

/// A start of the program that may be turned away, on a clock that stands on `today`.
struct Start {
    explicit Start(std::chrono::year_month_day today) : clock(today) {}

    modReadings::FixedClock clock;
    BrowserLog browser;
    Dialogs dialogs;
    frmMain form;
};

constexpr std::chrono::year_month_day DaysFromUsual(int days) {
    return std::chrono::sys_days(usualDay) + std::chrono::days(days);
}

QString StoredDay() { return QSettings().value(QStringLiteral("LastUpdate")).toString().left(10); }

/// What a start at a day asked, and what came of it.
struct Outcome {
    bool loaded = false;
    SeenMessage question;
    bool asked = false;
    QList<QUrl> pages;
    QString trouble;
};

Outcome StartAt(std::chrono::year_month_day today, QMessageBox::StandardButton answer) {
    Outcome outcome;
    Start start(today);
    if (answer != QMessageBox::NoButton)
        start.dialogs.PlanToPress(answer, &outcome.question);
    outcome.loaded = start.form.Form_Load();
    outcome.asked = !outcome.question.text.isEmpty();
    outcome.pages = start.browser.Taken();
    outcome.trouble = start.dialogs.Trouble();
    return outcome;
}

// --- What the child processes do

/// A first instance: starts, then answers questions about itself until its input ends.
int BeFirstInstance() {
    BrowserLog browser;
    frmMain form;
    TellParent(form.Form_Load() ? QStringLiteral("loaded") : QStringLiteral("refused"));
    form.show();
    while (!AskParent().isEmpty()) {
        QApplication::processEvents();
        TellParent(QStringLiteral("%1 %2 %3")
                       .arg(form.isVisible() ? QStringLiteral("visible") : QStringLiteral("hidden"),
                            form.FrontPage()->objectName(),
                            QString::number(browser.Taken().size())));
    }
    return 0;
}

/// Tells the months of the list, and what becomes of somebody born in the last of them.
int TellMonths() {
    modReadings::FixedClock clock(usualDay);
    BrowserLog browser;
    frmMain form;
    form.Form_Load();
    QStringList months;
    for (int index = 0; index < form.Picture1->cboMonth->count(); ++index)
        months << form.Picture1->cboMonth->itemText(index);
    TellParent(months.join(u' '));

    form.Picture1->txtFirstName->setText(QStringLiteral("OAK"));
    form.Picture1->txtLastName->setText(QStringLiteral("RIVER"));
    form.Picture1->cboDate->setCurrentIndex(28); // 29
    form.Picture1->cboMonth->setCurrentIndex(11);
    form.Picture1->cboYear->setCurrentIndex(85); // 1985
    form.cmdNext_Click();
    TellParent(
        QStringLiteral("%1 %2").arg(QStringView(modReadings::profile.BirthMonth).toString(),
                                    QString::number(modReadings::store.PersonalMonthNumber)));
    return 0;
}

int RunChild(const QString &role) {
    return role == QStringLiteral("months") ? TellMonths() : BeFirstInstance();
}

} // namespace

class StartTest : public QObject {
    Q_OBJECT

public:
    explicit StartTest(const TemporaryHome &home) : home_(home) {}

private:
    const TemporaryHome &home_;

    QStringList Locks() const {
        QStringList locks;
        for (QDirIterator files(home_.Path(), {QStringLiteral("*.lock")}, QDir::Files,
                                QDirIterator::Subdirectories);
             files.hasNext();)
            locks << files.next();
        return locks;
    }

    /// A child that has started as the first instance.
    static std::unique_ptr<ChildProcess> FirstInstance() {
        auto child = std::make_unique<ChildProcess>(QStringLiteral("first-instance"));
        if (child->Line() != QLatin1StringView("loaded"))
            qFatal("the first instance does not start");
        return child;
    }

private slots:
    void init() {
        ForgetAllRuns();
        ForgetAllPeople();
    }

    // --- An ordinary start

    void TheFirstThingSeenIsTheMainPageWithTheInputPage() {
        Start start(usualDay);
        QVERIFY(start.form.Form_Load());
        QVERIFY(!start.form.isVisible()); // it is main that shows it
        start.form.show();
        QVERIFY(QTest::qWaitForWindowActive(&start.form));
        QCOMPARE(start.form.FrontPage(), start.form.Picture1);
        const auto seenAt = [&](int x, int y) { return start.form.centralWidget()->childAt(x, y); };
        QCOMPARE(seenAt(1, 1), start.form.picMain);
        QVERIFY(start.form.TV->isAncestorOf(seenAt(100, 200)));       // on the left
        QVERIFY(start.form.Picture1->isAncestorOf(seenAt(400, 120))); // on the right
        QVERIFY(start.browser.Taken().isEmpty());
        VERIFY_DIALOGS(start.dialogs);
        QVERIFY(!start.form.IsUnloaded());
    }

    void NothingIsRememberedOfTheRunBefore() {
        {
            Program program;
            program.ProceedWithSomebody();
            program.form.close();
        }
        Start start(usualDay);
        QVERIFY(start.form.Form_Load());
        QCOMPARE(start.form.Picture1->txtFirstName->text(), QString());
        QCOMPARE(start.form.Picture1->cboYear->currentText(), QStringLiteral("1900"));
        QCOMPARE(start.form.Picture2->RTB->toPlainText(), QString());
        QCOMPARE(QSettings().allKeys(), QStringList{QStringLiteral("LastUpdate")});
    }

    void TheSettingsLieBelowTheUsersOwnFolder() {
        StartAt(usualDay, QMessageBox::NoButton);
        QVERIFY2(QSettings().fileName().startsWith(home_.Path()),
                 qPrintable(QSettings().fileName()));
        QVERIFY(QFile::exists(QSettings().fileName()));
    }

    // --- The update question

    void TheFirstRunAsksNothingAndStoresTheDay() {
        const Outcome outcome = StartAt(usualDay, QMessageBox::NoButton);
        QVERIFY2(outcome.trouble.isEmpty(), qPrintable(outcome.trouble));
        QVERIFY(outcome.loaded);
        QCOMPARE(StoredDay(), QStringLiteral("2026-11-16"));
        QVERIFY(outcome.pages.isEmpty());
    }

    void LessThanFifteenDaysAskNothingAndStoreNothing_data() {
        QTest::addColumn<int>("days");
        for (const int days : {0, 1, 14, -1, -14})
            QTest::addRow("%d days", days) << days;
    }
    void LessThanFifteenDaysAskNothingAndStoreNothing() {
        QFETCH(int, days);
        StartAt(usualDay, QMessageBox::NoButton);
        const QVariant stored = QSettings().value(QStringLiteral("LastUpdate"));
        const Outcome outcome = StartAt(DaysFromUsual(days), QMessageBox::NoButton);
        QVERIFY2(outcome.trouble.isEmpty(), qPrintable(outcome.trouble));
        QVERIFY(outcome.loaded);
        QCOMPARE(QSettings().value(QStringLiteral("LastUpdate")), stored);
    }

    void FifteenDaysAsk_data() {
        QTest::addColumn<int>("days");
        QTest::addColumn<int>("answer");
        for (const int days : {15, 16, 400, -15, -16, -400}) {
            QTest::addRow("%d days, Yes", days) << days << int{QMessageBox::Yes};
            QTest::addRow("%d days, No", days) << days << int{QMessageBox::No};
        }
    }
    void FifteenDaysAsk() {
        QFETCH(int, days);
        QFETCH(int, answer);
        StartAt(usualDay, QMessageBox::NoButton);
        const auto button = static_cast<QMessageBox::StandardButton>(answer);
        const Outcome outcome = StartAt(DaysFromUsual(days), button);
        QVERIFY2(outcome.trouble.isEmpty(), qPrintable(outcome.trouble));
        COMPARE_MESSAGE(outcome.question, QMessageBox::Warning,
                        QStringLiteral("Do You Wish To Update The Software ?"),
                        QMessageBox::Yes | QMessageBox::No);
        QVERIFY(outcome.loaded);
        if (button == QMessageBox::Yes)
            QCOMPARE(outcome.pages, QList<QUrl>{PageOfSite(QString::fromLatin1(updatePath))});
        else
            QVERIFY(outcome.pages.isEmpty());

        // Renewed with either answer: the next question comes 15 days after this day.
        const auto today = DaysFromUsual(days);
        QCOMPARE(StoredDay(), QDate(static_cast<int>(today.year()),
                                    static_cast<int>(static_cast<unsigned>(today.month())),
                                    static_cast<int>(static_cast<unsigned>(today.day())))
                                  .toString(Qt::ISODate));
        QVERIFY(!StartAt(DaysFromUsual(days + 14), QMessageBox::NoButton).asked);
        QVERIFY(StartAt(DaysFromUsual(days + 15), QMessageBox::No).asked);
    }

    void EscapeIsNo() {
        StartAt(usualDay, QMessageBox::NoButton);
        Start start(DaysFromUsual(20));
        SeenMessage seen;
        start.dialogs.PlanToEscape(&seen);
        QVERIFY(start.form.Form_Load());
        VERIFY_DIALOGS(start.dialogs);
        QCOMPARE(seen.text, QStringLiteral("Do You Wish To Update The Software ?"));
        QVERIFY(start.browser.Taken().isEmpty());
        QCOMPARE(StoredDay(), QStringLiteral("2026-12-06")); // 16 November and 20 days
    }

    void OnlyWholeDaysCount_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("asks");
        // The time of the day plays no part on either side.
        QTest::newRow("15 days, late") << QStringLiteral("2026-11-01T23:59:59") << true;
        QTest::newRow("15 days, early") << QStringLiteral("2026-11-01T00:00:00") << true;
        QTest::newRow("14 days, early") << QStringLiteral("2026-11-02T00:00:00") << false;
        QTest::newRow("14 days, late") << QStringLiteral("2026-11-02T23:59:59") << false;
        QTest::newRow("15 days ahead, early") << QStringLiteral("2026-12-01T00:00:00") << true;
        QTest::newRow("14 days ahead, late") << QStringLiteral("2026-11-30T23:59:59") << false;
    }
    void OnlyWholeDaysCount() {
        QFETCH(QString, stored);
        QFETCH(bool, asks);
        QSettings().setValue(QStringLiteral("LastUpdate"), stored);
        const Outcome outcome = StartAt(usualDay, asks ? QMessageBox::No : QMessageBox::NoButton);
        QVERIFY2(outcome.trouble.isEmpty(), qPrintable(outcome.trouble));
        QCOMPARE(outcome.asked, asks);
    }

    void AValueThatIsNoDateCountsAsAFirstRun_data() {
        QTest::addColumn<QVariant>("stored");
        QTest::newRow("words") << QVariant(QStringLiteral("the day before yesterday"));
        QTest::newRow("no such day") << QVariant(QStringLiteral("2026-02-31T10:00:00"));
        QTest::newRow("a number") << QVariant(12);
        QTest::newRow("a list") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")});
        QTest::newRow("the empty text") << QVariant(QString());
    }
    void AValueThatIsNoDateCountsAsAFirstRun() {
        QFETCH(QVariant, stored);
        QSettings().setValue(QStringLiteral("LastUpdate"), stored);
        const Outcome outcome = StartAt(usualDay, QMessageBox::NoButton);
        QVERIFY2(outcome.trouble.isEmpty(), qPrintable(outcome.trouble));
        QVERIFY(outcome.loaded);
        QCOMPARE(StoredDay(), QStringLiteral("2026-11-16"));
    }

    void SettingsThatCannotBeWrittenDoNotStopTheStart() {
        // The folder of the settings is a file.
        const QString folder = QFileInfo(QSettings().fileName()).path();
        QVERIFY(QDir(folder).removeRecursively());
        QFile blocker(folder);
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        const Outcome outcome = StartAt(usualDay, QMessageBox::NoButton);
        QVERIFY(blocker.remove());
        QVERIFY2(outcome.trouble.isEmpty(), qPrintable(outcome.trouble));
        QVERIFY(outcome.loaded);
    }

    // --- The second instance

    void ASecondInstanceIsTurnedAwayAndTheFirstOneIsUntouched() {
        const auto first = FirstInstance();

        Start second(usualDay);
        SeenMessage seen;
        second.dialogs.PlanToPress(QMessageBox::Ok, &seen);
        QVERIFY(!second.form.Form_Load());
        VERIFY_DIALOGS(second.dialogs);
        COMPARE_MESSAGE(seen, QMessageBox::Critical, QStringLiteral("Orravane Is Already Running"),
                        QMessageBox::Ok);
        QVERIFY(!seen.formWasVisible);
        QVERIFY(!second.form.isVisible());
        QVERIFY(second.form.IsUnloaded());
        QCOMPARE(second.browser.Taken(),
                 QList<QUrl>{PageOfSite(QStringLiteral("/thankyou-for-using-orravane.php"))});
        second.form.close(); // it has been unloaded already
        QVERIFY(second.browser.Taken().isEmpty());

        first->Say(QStringLiteral("how are you"));
        QCOMPARE(first->Line(), QStringLiteral("visible Picture1 0"));
        QCOMPARE(first->WaitForEnd(), 0);
    }

    void ASecondInstanceAsksAndStoresNothing() {
        const auto first = FirstInstance();
        QSettings().setValue(QStringLiteral("LastUpdate"), QStringLiteral("2020-01-01T00:00:00"));
        const Outcome second = StartAt(usualDay, QMessageBox::Ok); // one message, no question
        QVERIFY2(second.trouble.isEmpty(), qPrintable(second.trouble));
        QCOMPARE(second.question.text, QStringLiteral("Orravane Is Already Running"));
        QCOMPARE(StoredDay(), QStringLiteral("2020-01-01"));
    }

    void EverySecondInstanceIsTurnedAwayWhileTheFirstOneRuns() {
        const auto first = FirstInstance();
        for (int attempt = 0; attempt < 2; ++attempt) {
            const Outcome outcome = StartAt(usualDay, QMessageBox::Ok);
            QVERIFY2(outcome.trouble.isEmpty(), qPrintable(outcome.trouble));
            QVERIFY(!outcome.loaded);
        }
        QVERIFY(first->IsRunning());
    }

    void AnInstanceThatEndedIsNoReasonToTurnAway() {
        QCOMPARE(FirstInstance()->WaitForEnd(), 0);
        const Outcome outcome = StartAt(usualDay, QMessageBox::NoButton);
        QVERIFY2(outcome.trouble.isEmpty(), qPrintable(outcome.trouble));
        QVERIFY(outcome.loaded);
    }

    void TheLockOfAKilledInstanceIsNoReasonToTurnAway() {
        FirstInstance()->Kill();
        QCOMPARE(Locks().size(), 1); // it had no chance to tidy up
        const Outcome outcome = StartAt(usualDay, QMessageBox::NoButton);
        QVERIFY2(outcome.trouble.isEmpty(), qPrintable(outcome.trouble));
        QVERIFY(outcome.loaded);
        QVERIFY(outcome.pages.isEmpty());
    }

    void AnInstanceThatIsLockedForDaysIsStillRunning() {
        const auto first = FirstInstance();
        QCOMPARE(Locks().size(), 1);
        QFile lock(Locks().constFirst());
        QVERIFY(lock.open(QIODevice::ReadWrite));
        QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addDays(-100),
                                 QFileDevice::FileModificationTime));
        lock.close();
        const Outcome outcome = StartAt(usualDay, QMessageBox::Ok);
        QVERIFY2(outcome.trouble.isEmpty(), qPrintable(outcome.trouble));
        QVERIFY(!outcome.loaded);
    }

    void APlaceWithoutRoomForALockIsNoReasonToTurnAway() {
        // The folder of the lock is a file.
        const QString data = home_.PathOf(QStringLiteral("data"));
        QVERIFY(QDir(data).removeRecursively());
        QFile blocker(data);
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        const Outcome outcome = StartAt(usualDay, QMessageBox::NoButton);
        QVERIFY(blocker.remove());
        QVERIFY(QDir().mkpath(data));
        QVERIFY2(outcome.trouble.isEmpty(), qPrintable(outcome.trouble));
        QVERIFY(outcome.loaded);
    }

    // --- The system's language

    void TheMonthsAreThoseOfTheSystemsLanguage_data() {
        QTest::addColumn<QStringList>("variables");
        QTest::addColumn<QString>("months");
        QTest::addColumn<QString>("reading");
        // 29 December 1985 on 16 November 2026. December counts 3: 2 + 3 + 2 + 1 = 8. In
        // any other language the month counts 0, which leaves 5.
        QTest::newRow("English")
            << QStringList{QStringLiteral("LC_ALL=en_US.UTF-8")}
            << QStringLiteral("January February March April May June July August September October "
                              "November December")
            << QStringLiteral("December 8");
        QTest::newRow("German")
            << QStringList{QStringLiteral("LC_ALL=de_DE.UTF-8")}
            << QStringLiteral("Januar Februar M\u00E4rz April Mai Juni Juli August September "
                              "Oktober November Dezember")
            << QStringLiteral("Dezember 5");
        QTest::newRow("French by LANG") // all months begin small, which is how they are written
            << QStringList{QStringLiteral("LC_ALL="), QStringLiteral("LANG=fr_FR.UTF-8")}
            << QStringLiteral("janvier f\u00E9vrier mars avril mai juin juillet ao\u00FBt "
                              "septembre octobre novembre d\u00E9cembre")
            << QStringLiteral("d\u00E9cembre 5");
        QTest::newRow("Polish, the form without a day") // with one it would be "stycznia"
            << QStringList{QStringLiteral("LC_ALL=pl_PL.UTF-8")}
            << QStringLiteral("stycze\u0144 luty marzec kwiecie\u0144 maj czerwiec lipiec "
                              "sierpie\u0144 wrzesie\u0144 pa\u017Adziernik listopad grudzie\u0144")
            << QStringLiteral("grudzie\u0144 5");
    }
    void TheMonthsAreThoseOfTheSystemsLanguage() {
        QFETCH(QStringList, variables);
        QFETCH(QString, months);
        QFETCH(QString, reading);
        ChildProcess child(QStringLiteral("months"), variables);
        QCOMPARE(child.Line(), months);
        QCOMPARE(child.Line(), reading);
        QCOMPARE(child.WaitForEnd(), 0);
    }
};

ORRAVANE_TEST_PROGRAM_WITH_CHILD(StartTest, RunChild)

#include "dates_and_start_test.moc"
