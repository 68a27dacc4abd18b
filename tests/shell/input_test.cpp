#include "core/reading_store.h"
#include "core/user_profile.h"
#include "tests/shell/program.h"

#include <QClipboard>

#include <optional>

using modReadings::profile;
using modReadings::store;

// The input page: what is typed, what is missing, what is captured.

class InputTest : public QObject {
    Q_OBJECT

public:
    explicit InputTest(const TemporaryHome &) {}

private:
    std::optional<Program> program_;

    QList<NameBox *> NameBoxes() const {
        return {program_->input.txtFirstName, program_->input.txtMiddleName,
                program_->input.txtLastName};
    }

    static QStringList EntriesOf(const QComboBox *list) {
        QStringList entries;
        for (int index = 0; index < list->count(); ++index)
            entries << list->itemText(index);
        return entries;
    }

    /// Proceeds with blanks in place of a name. The Essence walks a name without letters
    /// until the age is reached, so only the year of birth itself lets it come to an end.
    void ProceedBornThisYear(const QString &first, const QString &middle, const QString &last) {
        program_->ClickNode(QStringLiteral("Enter The Information"));
        program_->Enter(first, middle, last, QStringLiteral("May"), QStringLiteral("7"),
                        QStringLiteral("2026"));
        program_->Proceed();
    }

private slots:
    void init() { program_.emplace(); }
    void cleanup() { program_.reset(); }

    // --- The lists

    void TheListsHoldAllDaysMonthsAndYears() {
        QStringList days;
        for (int day = 1; day <= 31; ++day)
            days << QString::number(day);
        QCOMPARE(EntriesOf(program_->input.cboDate), days);

        QCOMPARE(EntriesOf(program_->input.cboMonth),
                 QStringLiteral("January February March April May June July August September "
                                "October November December")
                     .split(u' '));

        QStringList years;
        for (int year = 1900; year <= 2050; ++year)
            years << QString::number(year);
        QCOMPARE(years.size(), 151);
        QCOMPARE(EntriesOf(program_->input.cboYear), years);
    }

    void TheListsStandOnTheirFirstEntries() {
        QCOMPARE(program_->input.cboMonth->currentText(), QStringLiteral("January"));
        QCOMPARE(program_->input.cboDate->currentText(), QStringLiteral("1"));
        QCOMPARE(program_->input.cboYear->currentText(), QStringLiteral("1900"));
    }

    void AListCannotBeTypedIntoOrEmptied() {
        QComboBox *list = program_->input.cboYear;
        list->setFocus();
        QTest::keyClicks(list, QStringLiteral("x"));
        QTest::keyClick(list, Qt::Key_Delete);
        QTest::keyClick(list, Qt::Key_Backspace);
        QCOMPARE(list->currentText(), QStringLiteral("1900"));
    }

    void WhoTouchesNoListIsBornOnTheFirstOfJanuary1900() {
        QTest::keyClicks(program_->input.txtFirstName, QStringLiteral("ann"));
        QTest::keyClicks(program_->input.txtLastName, QStringLiteral("lee"));
        program_->Proceed();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(profile.BirthDay, std::u16string(u"1"));
        QCOMPARE(profile.BirthMonth, std::u16string(u"January"));
        QCOMPARE(profile.BirthYear, std::u16string(u"1900"));
    }

    // --- The keystroke filter

    void SmallLettersAreTypedAsCapitals() {
        for (NameBox *box : NameBoxes()) {
            QTest::keyClicks(box, QStringLiteral("abcdefghijklmnopqrstuvwxyz"));
            QCOMPARE(box->text(), QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ"));
        }
    }

    void EveryOtherCharacterPassesUnchanged() {
        QString others;
        for (char16_t unit = 0x20; unit < 0x7F; ++unit)
            if (unit < u'a' || unit > u'z')
                others += QChar(unit);
        for (NameBox *box : NameBoxes()) {
            QTest::keyClicks(box, others);
            QCOMPARE(box->text(), others);
        }
    }

    void LettersOutsideAToZPassUnchanged_data() {
        QTest::addColumn<QString>("letter");
        QTest::newRow("e acute") << QStringLiteral("\u00E9");
        QTest::newRow("sharp s") << QStringLiteral("\u00DF");
        QTest::newRow("r caron") << QStringLiteral("\u0159");
        QTest::newRow("Cyrillic zhe") << QStringLiteral("\u0436");
        QTest::newRow("Chinese") << QStringLiteral("\u4E2D");
        QTest::newRow("above the 16-bit sign") << QStringLiteral("\uAC00");
        QTest::newRow("full-width a") << QStringLiteral("\uFF41");
        QTest::newRow("emoji") << QStringLiteral("\U0001F600");
    }
    void LettersOutsideAToZPassUnchanged() {
        QFETCH(QString, letter);
        for (NameBox *box : NameBoxes()) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, letter);
            QApplication::sendEvent(box, &press);
            QCOMPARE(box->text(), letter);
        }
    }

    void TypingGoesWhereTheCaretStandsAndOverWhatIsMarked() {
        NameBox *box = program_->input.txtFirstName;
        QTest::keyClicks(box, QStringLiteral("ac"));
        QTest::keyClick(box, Qt::Key_Left);
        QTest::keyClicks(box, QStringLiteral("b"));
        QCOMPARE(box->text(), QStringLiteral("ABC"));
        box->setSelection(0, 2);
        QTest::keyClicks(box, QStringLiteral("x"));
        QCOMPARE(box->text(), QStringLiteral("XC"));
        QTest::keyClick(box, Qt::Key_Backspace);
        QCOMPARE(box->text(), QStringLiteral("C"));
    }

    void PastedTextPassesTheFilterAndIsCapturedUpperCase() {
        program_->EnterSomebody();
        NameBox *box = program_->input.txtFirstName;
        box->clear();
        QApplication::clipboard()->setText(QStringLiteral("stra\u00DFe \u00E9"));
        QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(box->text(), QStringLiteral("stra\u00DFe \u00E9"));
        program_->Proceed();
        QCOMPARE(profile.FirstName, std::u16string(u"STRASSE \u00C9"));
        QCOMPARE(box->text(), QStringLiteral("stra\u00DFe \u00E9")); // the box is left alone
    }

    void ANameHasNoLimitOfLength() {
        const QString longName(40'000, u'z');
        program_->Enter({}, {}, QStringLiteral("lee"), QStringLiteral("May"), QStringLiteral("7"),
                        QStringLiteral("2026"));
        QApplication::clipboard()->setText(longName);
        QTest::keyClick(program_->input.txtFirstName, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(program_->input.txtFirstName->text().size(), 40'000);
        program_->Proceed();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(profile.FirstName, std::u16string(40'000, u'Z'));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
    }

    // --- What is missing

    void EachMissingInputHasItsMessage_data() {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("message");
        QTest::newRow("first name")
            << QStringLiteral("txtFirstName") << QStringLiteral("Please Enter Your First Name");
        QTest::newRow("last name")
            << QStringLiteral("txtLastName") << QStringLiteral("Please Enter Your Last Name");
        QTest::newRow("date") << QStringLiteral("cboDate")
                              << QStringLiteral("Please Specify Your Birth Date");
        QTest::newRow("month") << QStringLiteral("cboMonth")
                               << QStringLiteral("Please Specify Your Birth Month");
        QTest::newRow("year") << QStringLiteral("cboYear")
                              << QStringLiteral("Please Specify Your Birth Year");
    }
    void EachMissingInputHasItsMessage() {
        QFETCH(QString, control);
        QFETCH(QString, message);
        program_->EnterSomebody();
        auto *missing = program_->input.findChild<QWidget *>(control);
        if (auto *box = qobject_cast<QLineEdit *>(missing))
            box->clear();
        else
            qobject_cast<QComboBox *>(missing)->setCurrentIndex(-1);
        program_->input.txtMiddleName->setFocus();

        SeenMessage seen;
        program_->dialogs.PlanToPress(QMessageBox::Ok, &seen);
        program_->Proceed();
        VERIFY_DIALOGS(program_->dialogs);

        COMPARE_MESSAGE(seen, QMessageBox::Critical, message, QMessageBox::Ok);
        QCOMPARE(program_->Focus(), missing);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture1);
        QCOMPARE(profile.FirstName, std::u16string());
        QCOMPARE(store.PersonalMonthNumber, std::int16_t{0});
        QCOMPARE(program_->RTB.toPlainText(), QString());
    }

    void TheSameChecksStandBeforeATopic_data() { EachMissingInputHasItsMessage_data(); }
    void TheSameChecksStandBeforeATopic() {
        QFETCH(QString, control);
        QFETCH(QString, message);
        program_->ProceedWithSomebody();
        const std::u16string report = program_->ReportText();
        auto *missing = program_->input.findChild<QWidget *>(control);
        if (auto *box = qobject_cast<QLineEdit *>(missing))
            box->clear();
        else
            qobject_cast<QComboBox *>(missing)->setCurrentIndex(-1);

        SeenMessage seen;
        program_->dialogs.PlanToPress(QMessageBox::Ok, &seen);
        program_->ClickNode(QStringLiteral("Balance Number"));
        VERIFY_DIALOGS(program_->dialogs);

        COMPARE_MESSAGE(seen, QMessageBox::Critical, message, QMessageBox::Ok);
        QCOMPARE(program_->Focus(), missing);
        QCOMPARE(program_->ReportText(), report);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2); // no page is turned
    }

    void TheFirstMissingInputAloneIsTold() {
        program_->input.cboDate->setCurrentIndex(-1);
        program_->input.cboMonth->setCurrentIndex(-1);
        program_->input.cboYear->setCurrentIndex(-1);
        // One after the other is given, and the next in the order is told.
        const auto told = [this] {
            SeenMessage seen;
            program_->dialogs.PlanToPress(QMessageBox::Ok, &seen);
            program_->Proceed();
            const QString trouble = program_->dialogs.Trouble();
            return trouble.isEmpty() ? seen.text : trouble;
        };
        QCOMPARE(told(), QStringLiteral("Please Enter Your First Name"));
        program_->input.txtFirstName->setText(QStringLiteral("ANN"));
        QCOMPARE(told(), QStringLiteral("Please Enter Your Last Name"));
        program_->input.txtLastName->setText(QStringLiteral("LEE"));
        QCOMPARE(told(), QStringLiteral("Please Specify Your Birth Date"));
        program_->input.cboDate->setCurrentIndex(0);
        QCOMPARE(told(), QStringLiteral("Please Specify Your Birth Month"));
        program_->input.cboMonth->setCurrentIndex(0);
        QCOMPARE(told(), QStringLiteral("Please Specify Your Birth Year"));
        program_->input.cboYear->setCurrentIndex(0);
        program_->Proceed();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
    }

    void EscapeClosesAMessageToo() {
        SeenMessage seen;
        program_->dialogs.PlanToEscape(&seen);
        program_->Proceed();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(seen.text, QStringLiteral("Please Enter Your First Name"));
        QCOMPARE(program_->Focus(), program_->input.txtFirstName);
    }

    void TheMiddleNameIsNotAskedFor() {
        program_->EnterSomebody();
        QCOMPARE(program_->input.txtMiddleName->text(), QString());
        program_->Proceed();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(profile.MiddleName, std::u16string());
    }

    void BlanksAloneAreAnAnswer() {
        ProceedBornThisYear(QStringLiteral("   "), QStringLiteral(" "), QStringLiteral("lee"));
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(profile.FirstName, std::u16string());
        QCOMPARE(profile.MiddleName, std::u16string());
        QCOMPARE(profile.LastName, std::u16string(u"LEE"));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);

        ProceedBornThisYear(QStringLiteral("ann"), {}, QStringLiteral("  "));
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(profile.LastName, std::u16string());
    }

    // --- What is captured

    void ProceedCapturesAllSixInputs() {
        program_->Enter(QStringLiteral("  mary ann "), QStringLiteral(" b "),
                        QStringLiteral("o'neill-3"), QStringLiteral("February"),
                        QStringLiteral("31"), QStringLiteral("2050")); // there is no calendar
        program_->Proceed();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(profile.FirstName, std::u16string(u"MARY ANN"));
        QCOMPARE(profile.MiddleName, std::u16string(u"B"));
        QCOMPARE(profile.LastName, std::u16string(u"O'NEILL-3"));
        QCOMPARE(profile.BirthMonth, std::u16string(u"February"));
        QCOMPARE(profile.BirthDay, std::u16string(u"31"));
        QCOMPARE(profile.BirthYear, std::u16string(u"2050"));
    }

    void TheCommandButtonDoesTheSameAsTheImage() {
        program_->EnterSomebody();
        program_->form.cmdNext->click();
        QCOMPARE(profile.LastName, std::u16string(u"RIVER"));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
    }

    void ProceedRunsTheWholePass() {
        program_->ProceedWithSomebody();
        QCOMPARE(store.DestinyNumber, std::int16_t{9});  // 45
        QCOMPARE(store.SoulUrgeNumber, std::int16_t{3}); // 21, the last of the pass
        QCOMPARE(store.BirthdayRaw, std::int16_t{29});   // the second
        QCOMPARE(store.HPBridgeNumber, std::int16_t{0}); // the pass itself sees two zeros
        QCOMPARE(store.LifePathNumber, std::int16_t{1}); // 2 + 3 + 5
    }

    void ProceedTwiceIsTheSame() {
        program_->ProceedWithSomebody();
        const std::u16string report = program_->ReportText();
        const std::u16string text = store.SoulUrgeText;
        program_->ClickNode(QStringLiteral("Enter The Information"));
        program_->Proceed();
        QCOMPARE(program_->ReportText(), report);
        QCOMPARE(store.SoulUrgeText, text);
        QCOMPARE(program_->TV.selectedItems(),
                 QList<QTreeWidgetItem *>{program_->Node(QStringLiteral("Personal Month"))});
        QVERIFY(program_->Node(QStringLiteral("Numerology"))->isExpanded());
        QVERIFY(!program_->Node(QStringLiteral("User Information"))->isExpanded());
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
    }

    void EditingABoxChangesNoReadingUntilProceed() {
        program_->ProceedWithSomebody();
        program_->ClickNode(QStringLiteral("Enter The Information"));
        program_->Enter(QStringLiteral("sky"), {}, QStringLiteral("lynn"), QStringLiteral("June"),
                        QStringLiteral("2"), QStringLiteral("1990"));
        program_->ClickNode(QStringLiteral("Destiny / Expressions Number"));
        QVERIFY(program_->ReportText().starts_with(u"Your Destiny Or Expression Number is: 9\r\n"));
        QCOMPARE(profile.FirstName, std::u16string(u"OAK"));

        program_->ClickNode(QStringLiteral("Enter The Information"));
        program_->Proceed();
        program_->ClickNode(QStringLiteral("Destiny / Expressions Number"));
        // 1 + 2 + 7 + 3 + 7 + 5 + 5 = 30
        QVERIFY(program_->ReportText().starts_with(u"Your Destiny Or Expression Number is: 3\r\n"));
    }

    // --- Reset

    void ResetEmptiesTheInputPageAndNothingElse() {
        program_->ProceedWithSomebody();
        program_->ClickNode(QStringLiteral("Essence"));
        const std::u16string report = program_->ReportText();
        const std::u16string essence = store.EssenceText;

        program_->ClickNode(QStringLiteral("Reset"));
        VERIFY_DIALOGS(program_->dialogs);
        for (const NameBox *box : NameBoxes())
            QCOMPARE(box->text(), QString());
        QCOMPARE(program_->input.cboMonth->currentIndex(), 0);
        QCOMPARE(program_->input.cboDate->currentIndex(), 0);
        QCOMPARE(program_->input.cboYear->currentIndex(), 0);
        QCOMPARE(program_->Focus(), program_->input.txtFirstName);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture1);

        QCOMPARE(program_->ReportText(), report);
        QCOMPARE(profile.LastName, std::u16string(u"RIVER"));
        QCOMPARE(store.EssenceText, essence);
        QVERIFY(program_->Node(QStringLiteral("Numerology"))->isExpanded());
    }

    void ResetBeforeAnythingWasEnteredIsHarmless() {
        program_->ClickNode(QStringLiteral("Reset"));
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture1);
        QCOMPARE(program_->input.cboMonth->currentText(), QStringLiteral("January"));
        QCOMPARE(program_->Focus(), program_->input.txtFirstName);
    }

    void ATopicBehindAResetAsksForTheFirstName() {
        program_->ProceedWithSomebody();
        program_->ClickNode(QStringLiteral("Reset"));
        const std::u16string report = program_->ReportText();
        SeenMessage seen;
        program_->dialogs.PlanToPress(QMessageBox::Ok, &seen);
        program_->ClickNode(QStringLiteral("Essence"));
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(seen.text, QStringLiteral("Please Enter Your First Name"));
        QCOMPARE(program_->ReportText(), report);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture1);
    }

    void ATopicBehindAResetAndNewNamesStillShowsThePersonBefore() {
        program_->ProceedWithSomebody();
        program_->ClickNode(QStringLiteral("Reset"));
        program_->Enter(QStringLiteral("sky"), {}, QStringLiteral("lynn"), QStringLiteral("June"),
                        QStringLiteral("2"), QStringLiteral("1990"));
        program_->ClickNode(QStringLiteral("Soul Urge / Heart's Desire Number"));
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(program_->ReportText().starts_with(
            u"Your Soul Urge Or Heart's Desire Number is: 3\r\n"));
    }
};

ORRAVANE_TEST_PROGRAM(InputTest)

#include "input_test.moc"
