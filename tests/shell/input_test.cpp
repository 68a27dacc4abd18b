#include "tests/shell/window_test.h"

#include <QClipboard>

// The input page: what is typed, what is missing, what is captured.

using modReadings::profile;
using modReadings::store;

class InputTest : public WindowTest {
    Q_OBJECT

    const QList<NameBox *> boxes_{input.txtFirstName, input.txtMiddleName, input.txtLastName};

    static QStringList EntriesOf(const QComboBox *list) {
        QStringList entries;
        for (int index = 0; index < list->count(); ++index)
            entries << list->itemText(index);
        return entries;
    }

private slots:
    // --- The lists

    void TheListsHoldAllDaysMonthsAndYears() {
        QStringList days;
        for (int day = 1; day <= 31; ++day)
            days << QString::number(day);
        QCOMPARE(EntriesOf(input.cboDate), days);
        QCOMPARE(EntriesOf(input.cboMonth),
                 u"January February March April May June July August September October November "
                 "December"_s.split(u' '));
        QStringList years;
        for (int year = 1900; year <= 2050; ++year)
            years << QString::number(year);
        QCOMPARE(years.size(), 151);
        QCOMPARE(EntriesOf(input.cboYear), years);
    }

    void TheListsAreFilledInTheirOrder() {
        // The date before the month before the year, all of one before any of the next.
        InputPage page(nullptr);
        QStringList order;
        const QList<std::pair<QComboBox *, QString>> lists{
            {page.cboDate, u"date"_s}, {page.cboMonth, u"month"_s}, {page.cboYear, u"year"_s}};
        for (const auto &[list, name] : lists)
            connect(list->model(), &QAbstractItemModel::rowsInserted, &page, [&order, name] {
                if (order.isEmpty() || order.last() != name)
                    order << name;
            });
        page.FillLists();
        QCOMPARE(order, u"date month year"_s.split(u' '));
        order.clear();
        for (const auto &[list, name] : lists) {
            list->setCurrentIndex(3);
            connect(list, &QComboBox::currentIndexChanged, &page,
                    [&order, name](int index) { order << name + QString::number(index); });
        }
        page.SelectFirstDates();
        QCOMPARE(order, u"month0 date0 year0"_s.split(u' '));
    }

    void AListCannotBeTypedIntoOrEmptied() {
        QTest::keyClicks(input.cboYear, u"x"_s);
        QTest::keyClick(input.cboYear, Qt::Key_Delete);
        QTest::keyClick(input.cboYear, Qt::Key_Backspace);
        QCOMPARE(input.cboYear->currentText(), u"1900"_s);
    }

    // --- The keystroke filter

    void SmallLettersAreTypedAsCapitalsAndAllElseAsItIs() {
        QString typed;
        QString expected;
        for (char16_t unit = 0x20; unit < 0x7F; ++unit) {
            typed += QChar(unit);
            expected += unit >= u'a' && unit <= u'z' ? QChar(unit - 32) : QChar(unit);
        }
        for (NameBox *box : boxes_) {
            QTest::keyClicks(box, typed);
            QCOMPARE(box->text(), expected);
        }
    }

    void LettersOutsideAToZPassUnchanged() {
        for (const QString &letter :
             {u"\u00E9"_s, u"\u00DF"_s, u"\u0159"_s, u"\u0436"_s, u"\u4E2D"_s, // accents, alphabets
              u"\uAC00"_s, u"\uFF41"_s, u"\U0001F600"_s}) { // above 16 bits with a sign, wide a
            for (NameBox *box : boxes_) {
                QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, letter);
                QApplication::sendEvent(box, &press);
                QCOMPARE(box->text(), letter);
                box->clear();
            }
        }
    }

    void WhatAnInputMethodCommitsGoesThroughTheSameFilter() {
        for (NameBox *box : boxes_) {
            QInputMethodEvent composing(u"ab"_s, {});
            QApplication::sendEvent(box, &composing);
            QCOMPARE(box->text(), QString()); // not there yet, and shown as it is composed
            QCOMPARE(box->inputMethodQuery(Qt::ImCursorPosition).toInt(), 0);
            QInputMethodEvent commit;
            commit.setCommitString(u"az AZ-\u00E9\u0159\u4E2D\uFF41\U0001F600"_s);
            QApplication::sendEvent(box, &commit);
            QCOMPARE(box->text(), u"AZ AZ-\u00E9\u0159\u4E2D\uFF41\U0001F600"_s);
            QInputMethodEvent replace; // the first two characters by another one
            replace.setCommitString(u"b"_s, -static_cast<int>(box->text().size()), 2);
            QApplication::sendEvent(box, &replace);
            QVERIFY(box->text().startsWith(u"B AZ-"_s));
        }
    }

    void TypingGoesWhereTheCaretStandsAndOverWhatIsMarked() {
        NameBox *box = input.txtFirstName;
        QTest::keyClicks(box, u"ac"_s);
        QTest::keyClick(box, Qt::Key_Left);
        QTest::keyClicks(box, u"b"_s);
        QCOMPARE(box->text(), u"ABC"_s);
        box->setSelection(0, 2);
        QTest::keyClicks(box, u"x"_s);
        QCOMPARE(box->text(), u"XC"_s);
    }

    void PastedTextPassesTheFilterAndIsCapturedUpperCase() {
        EnterSomebody();
        NameBox *box = input.txtFirstName;
        box->clear();
        QApplication::clipboard()->setText(u"stra\u00DFe \u00E9"_s);
        QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(box->text(), u"stra\u00DFe \u00E9"_s);
        Proceed();
        QCOMPARE(profile.FirstName, u"STRASSE \u00C9"s);
        QCOMPARE(box->text(), u"stra\u00DFe \u00E9"_s); // the box is left alone
    }

    void ANameHasNoLimitOfLength() {
        Enter({}, {}, u"lee"_s, u"May"_s, 7, 2026);
        QApplication::clipboard()->setText(QString(40'000, u'z'));
        QTest::keyClick(input.txtFirstName, Qt::Key_V, Qt::ControlModifier);
        Proceed();
        QCOMPARE(profile.FirstName, std::u16string(40'000, u'Z'));
        QCOMPARE(Page(), u"Picture2"_s);
    }

    // --- What is missing

    void EachMissingInputHasItsMessage() {
        // Only lists that are emptied by hand can miss something: their checks never fire.
        for (QComboBox *list : {input.cboDate, input.cboMonth, input.cboYear})
            list->setCurrentIndex(-1);
        // One after the other is given, and the next in the order is told, alone.
        const auto proceedAsksFor = [this](const QWidget *missing, const QString &what) {
            input.txtMiddleName->setFocus();
            QCOMPARE(dialogs.MessageOf([this] { Proceed(); }),
                     u"Critical, Orravane: Please %1 [OK]"_s.arg(what));
            QCOMPARE(Focus(), missing);
            QCOMPARE(Page(), u"Picture1"_s);
            QCOMPARE(profile.BirthMonth, u""s); // nothing is captured, calculated or written
            QCOMPARE(int{store.PersonalMonthNumber}, 0);
            QVERIFY(RTB.ShownReport().empty());
        };
        proceedAsksFor(input.txtFirstName, u"Enter Your First Name"_s);
        input.txtFirstName->setText(u"ANN"_s);
        proceedAsksFor(input.txtLastName, u"Enter Your Last Name"_s);
        input.txtLastName->setText(u"LEE"_s);
        proceedAsksFor(input.cboDate, u"Specify Your Birth Date"_s);
        input.cboDate->setCurrentIndex(0);
        proceedAsksFor(input.cboMonth, u"Specify Your Birth Month"_s);
        input.cboMonth->setCurrentIndex(0);
        proceedAsksFor(input.cboYear, u"Specify Your Birth Year"_s);
        input.cboYear->setCurrentIndex(0);
        Proceed(); // no middle name is asked for
        QCOMPARE(profile.BirthMonth, u"January"s);
        QCOMPARE(Page(), u"Picture2"_s);
    }

    void EscapeClosesAMessageToo() {
        QVERIFY(dialogs.MessageOf([this] { Proceed(); }, QMessageBox::NoButton)
                    .contains(u"First Name"_s));
        QCOMPARE(Focus(), input.txtFirstName);
    }

    void BlanksAloneAreAnAnswer() {
        // The Essence walks a name without letters until the age is reached, so only who is
        // born this year lets it come to an end.
        Enter(u"   "_s, u" "_s, u"lee"_s, u"May"_s, 7, 2026);
        Proceed();
        QCOMPARE(profile.FirstName + u'|' + profile.MiddleName + u'|' + profile.LastName,
                 u"||LEE"s);
        QCOMPARE(Page(), u"Picture2"_s);

        ClickNode(u"Enter The Information"_s);
        Enter(u"ann"_s, {}, u"  "_s, u"May"_s, 7, 2026);
        Proceed();
        QCOMPARE(profile.FirstName + u'|' + profile.LastName, u"ANN|"s);
    }

    // --- What is captured

    void ProceedCapturesAllSixInputsAndRunsTheWholePass() {
        Enter(u"  mary ann "_s, u" b "_s, u"o'neill-3"_s, u"February"_s, 31, 2050); // no calendar
        Proceed();
        QCOMPARE(profile.FirstName, u"MARY ANN"s);
        QCOMPARE(profile.MiddleName, u"B"s);
        QCOMPARE(profile.LastName, u"O'NEILL-3"s);
        QCOMPARE(profile.BirthMonth, u"February"s);
        QCOMPARE(profile.BirthDay, u"31"s);
        QCOMPARE(profile.BirthYear, u"2050"s);

        store = {};
        ClickNode(u"Enter The Information"_s);
        EnterSomebody();
        form.cmdNext->click(); // does the same as the image
        QCOMPARE(profile.LastName, u"RIVER"s);
        QCOMPARE(int{store.BirthdayRaw}, 29);   // the second of the pass
        QCOMPARE(int{store.LifePathNumber}, 1); // 2 + 3 + 5
        QCOMPARE(int{store.DestinyNumber}, 9);  // 45
        QCOMPARE(int{store.HPBridgeNumber}, 0); // the pass itself sees two zeros
        QCOMPARE(int{store.SoulUrgeNumber}, 3); // 21, the last
        const std::u16string report = ReportText();

        ClickNode(u"Enter The Information"_s);
        Proceed(); // and once more
        QCOMPARE(ReportText(), report);
        QCOMPARE(int{store.DestinyNumber}, 9);
        QCOMPARE(Page(), u"Picture2"_s);
    }

    void EditingABoxChangesNoReadingUntilProceed() {
        ProceedWithSomebody();
        ClickNode(u"Enter The Information"_s);
        Enter(u"sky"_s, {}, u"lynn"_s, u"June"_s, 2, 1990);
        ClickNode(u"Destiny / Expressions Number"_s);
        QVERIFY(ReportText().starts_with(u"Your Destiny Or Expression Number is: 9\r\n"));
        QCOMPARE(profile.FirstName, u"OAK"s);

        ClickNode(u"Enter The Information"_s);
        Proceed();
        ClickNode(u"Destiny / Expressions Number"_s);
        // 1 + 2 + 7 + 3 + 7 + 5 + 5 = 30
        QVERIFY(ReportText().starts_with(u"Your Destiny Or Expression Number is: 3\r\n"));
    }

    // --- Reset

    void ResetGoesInItsOrder() {
        EnterSomebody();
        input.txtMiddleName->setText(u"MIDDLE"_s);
        form.TV_NodeClick(Node(u"Help"_s));
        TV.setFocus();
        QStringList order;
        const QObject listener;
        const auto note = [&](const QString &what) {
            order << what + (Focus() == input.txtFirstName ? u"!"_s : QString()) + u' ' + Page();
        };
        connect(input.txtFirstName, &QLineEdit::textChanged, &listener, [&] { note(u"first"_s); });
        connect(input.txtMiddleName, &QLineEdit::textChanged, &listener,
                [&] { note(u"middle"_s); });
        connect(input.txtLastName, &QLineEdit::textChanged, &listener, [&] { note(u"last"_s); });
        connect(input.cboMonth, &QComboBox::currentIndexChanged, &listener,
                [&] { note(u"month"_s); });
        connect(input.cboDate, &QComboBox::currentIndexChanged, &listener,
                [&] { note(u"date"_s); });
        connect(input.cboYear, &QComboBox::currentIndexChanged, &listener,
                [&] { note(u"year"_s); });
        form.TV_NodeClick(Node(u"Reset"_s));
        // The page before everything, the focus behind everything.
        QCOMPARE(order, (QStringList{u"first Picture1"_s, u"middle Picture1"_s, u"last Picture1"_s,
                                     u"month Picture1"_s, u"date Picture1"_s, u"year Picture1"_s}));
        QCOMPARE(Focus(), input.txtFirstName);
    }

    void ResetEmptiesTheInputPageAndNothingElse() {
        ProceedWithSomebody();
        input.txtMiddleName->setText(u"MIDDLE"_s);
        ClickNode(u"Essence"_s);
        const std::u16string report = ReportText();
        const std::u16string essence = store.EssenceText;

        for (int times = 0; times < 2; ++times) { // the second one finds nothing to empty
            input.txtLastName->setFocus();
            ClickNode(u"Reset"_s);
            for (const NameBox *box : boxes_)
                QCOMPARE(box->text(), QString());
            for (const QComboBox *list : {input.cboMonth, input.cboDate, input.cboYear})
                QCOMPARE(list->currentIndex(), 0);
            QCOMPARE(Focus(), input.txtFirstName);
            QCOMPARE(Page(), u"Picture1"_s);
            QCOMPARE(ReportText(), report);
            QCOMPARE(profile.LastName, u"RIVER"s);
            QCOMPARE(store.EssenceText, essence);
            QVERIFY(Node(u"Numerology"_s)->isExpanded());
        }

        // A topic behind it asks for the names, and then still shows the person before.
        QVERIFY(dialogs.MessageOf([this] { ClickNode(u"Essence"_s); }).contains(u"First Name"_s));
        Enter(u"sky"_s, {}, u"lynn"_s, u"June"_s, 2, 1990);
        ClickNode(u"Soul Urge / Heart's Desire Number"_s);
        QVERIFY(ReportText().starts_with(u"Your Soul Urge Or Heart's Desire Number is: 3\r\n"));
    }
};

ORRAVANE_TEST_PROGRAM(InputTest)

#include "input_test.moc"
