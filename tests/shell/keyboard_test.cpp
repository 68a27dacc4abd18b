#include "tests/shell/window_test.h"

#include <QAbstractItemView>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>

// The window without a mouse. A button that is reached by its letter goes down first and
// clicks a moment later, so its effect is waited for.

using modReadings::profile;

class KeyboardTest : public WindowTest {
    Q_OBJECT

    /// The names of the controls that the focus goes through, from the one that has it
    /// until it is there again.
    QStringList Round(Qt::KeyboardModifiers modifiers) {
        QStringList names;
        const QWidget *start = Focus();
        do {
            names << Focus()->objectName();
            QTest::keyClick(Focus(), modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
        } while (Focus() != start && names.size() < 30);
        return names;
    }

private slots:
    void TabReachesWhatIsInSight_data() {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("stops");
        QTest::newRow("input page") << u"User Information"_s
                                    << u"txtFirstName txtMiddleName txtLastName cboMonth cboDate "
                                       "cboYear picProceed"_s;
        QTest::newRow("report page") << u"Essence"_s << u"RTB picPrint picSave"_s;
        QTest::newRow("help page") << u"Help"_s << u"lblHelp0 lblHelp1"_s;
    }
    void TabReachesWhatIsInSight() {
        QFETCH(QString, caption);
        QFETCH(QString, stops);
        QStringList order = (stops + u" TV picHelp picExit lblHyperlink"_s).split(u' ');
        EnterSomebody();
        ClickNode(caption);
        form.findChild<QWidget *>(order[0])->setFocus();
        QCOMPARE(Round({}), order);
        std::reverse(order.begin() + 1, order.end()); // it begins where it begins
        QCOMPARE(Round(Qt::ShiftModifier), order);
    }

    void TheFocusDoesNotStayOnAPageThatIsCovered() {
        EnterSomebody();
        input.picProceed->setFocus();
        Proceed();
        QVERIFY(!form.Picture1->isAncestorOf(Focus()));
        RTB.setFocus();
        form.mnuAbout->trigger();
        QVERIFY(!form.Picture2->isAncestorOf(Focus()));
        help.lblHelp[1]->setFocus();
        ClickNode(u"User Information"_s);
        QVERIFY(!form.Picture3->isAncestorOf(Focus()));
    }

    void ImageButtonsAnswerEnterAndSpace() {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QTest::keyClick(form.picHelp, key);
            QCOMPARE(browser.Taken(), QStringList{u"/orravane-help/"_s});
        }
        EnterSomebody();
        QTest::keyClick(input.picProceed, Qt::Key_Return);
        QCOMPARE(Page(), u"Picture2"_s);
    }

    /// Presses Alt and a letter, and leaves time for what it could start.
    void PressLetter(Qt::Key letter) {
        QTest::keyClick(&form, letter, Qt::AltModifier);
        for (const QPushButton *button : {form.cmdNext, form.cmdPrint, form.cmdSave})
            QTRY_VERIFY(!button->isDown());
        QApplication::processEvents();
    }

    void AltPIsProceedOnTheInputPage() {
        EnterSomebody();
        QTest::keyClick(input.txtLastName, Qt::Key_P, Qt::AltModifier);
        QTRY_COMPARE(profile.LastName, u"RIVER"s);
        QCOMPARE(Page(), u"Picture2"_s);
        QCOMPARE(input.txtLastName->text(), u"RIVER"_s); // not typed
    }

    void NoLetterActsOnTheHelpPage() {
        ProceedWithSomebody();
        input.txtLastName->setText(u"OTHER"_s);
        RTB.selectAll();
        form.mnuAbout->trigger();
        PressLetter(Qt::Key_P);
        PressLetter(Qt::Key_S); // a dialog would be one that nobody planned
        QCOMPARE(profile.LastName, u"RIVER"s);
        QVERIFY(RTB.textCursor().hasSelection());
        QCOMPARE(Page(), u"Picture3"_s);
    }

    void AltSDoesNothingOnTheInputPage() {
        EnterSomebody();
        PressLetter(Qt::Key_S);
        QCOMPARE(input.txtLastName->text(), u"RIVER"_s);
        QCOMPARE(Page(), u"Picture1"_s);
    }

    void AltPIsPrintOnTheReportPage() {
        ProceedWithSomebody();
        ClickNode(u"Essence"_s);
        const std::u16string report = ReportText();
        input.txtLastName->setText(u"OTHER"_s);
        RTB.selectAll();
        QTest::keyClick(&form, Qt::Key_P, Qt::AltModifier);
        QTRY_VERIFY(!RTB.textCursor().hasSelection()); // what print does first
        QCOMPARE(profile.LastName, u"RIVER"s);         // no Proceed
        QCOMPARE(ReportText(), report);
    }

    void AltSOpensTheSaveDialogOnTheReportPage() {
        ProceedWithSomebody();
        bool isSaveDialog = false;
        dialogs.Plan([&](QDialog &dialog) {
            const auto *files = qobject_cast<QFileDialog *>(&dialog);
            isSaveDialog = files != nullptr && files->acceptMode() == QFileDialog::AcceptSave;
            dialog.reject();
        });
        QTest::keyClick(&form, Qt::Key_S, Qt::AltModifier);
        QTRY_VERIFY(isSaveDialog);
        QTRY_VERIFY(!form.cmdSave->isDown());
    }

    void TheMenusOpenByTheirLetters() {
        QMenu *file = form.menuBar()->actions().at(0)->menu();
        QTest::keyClick(&form, Qt::Key_F, Qt::AltModifier);
        QTRY_VERIFY(file->isVisible());
        QTest::keyClick(file, Qt::Key_Escape);
        QTRY_VERIFY(!file->isVisible());

        Activate();
        QMenu *helpMenu = form.menuBar()->actions().at(1)->menu();
        QTest::keyClick(&form, Qt::Key_H, Qt::AltModifier);
        QTRY_VERIFY(helpMenu->isVisible());
        QTest::keyClick(helpMenu, Qt::Key_V);
        QTRY_VERIFY(!helpMenu->isVisible());
        QCOMPARE(browser.Taken(), QStringList{u"/"_s});
    }

    void EnterInANameBoxOrAClosedListIsProceed() {
        int year = 1900;
        for (QWidget *control : std::initializer_list<QWidget *>{
                 input.txtFirstName, input.txtMiddleName, input.txtLastName, input.cboMonth,
                 input.cboDate, input.cboYear}) {
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
                form.TV_NodeClick(Node(u"User Information"_s));
                EnterSomebody();
                input.cboYear->setCurrentText(QString::number(++year));
                control->setFocus();
                QTest::keyClick(control, key,
                                key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
                QCOMPARE(QString::fromStdU16String(profile.BirthYear), QString::number(year));
                QCOMPARE(Page(), u"Picture2"_s);
            }
        }
    }

    void EnterWithAMissingNameShowsOneMessageHoweverLongItIsHeld() {
        input.txtFirstName->setFocus();
        QVERIFY(dialogs.MessageOf([this] { QTest::keyClick(input.txtFirstName, Qt::Key_Return); })
                    .contains(u"First Name"_s));
        TV.setCurrentItem(Node(u"Essence"_s));
        for (QWidget *control :
             std::initializer_list<QWidget *>{input.txtFirstName, input.cboYear, &TV})
            for (int times = 0; times < 3; ++times) {
                QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
                QApplication::sendEvent(control, &repeated); // a message would be unplanned
            }
    }

    void EnterInAnOpenListPicksTheEntryAndNoMore() {
        EnterSomebody();
        input.cboMonth->setFocus();
        input.cboMonth->showPopup();
        QTest::keyClick(input.cboMonth->view(), Qt::Key_Home);
        QTest::keyClick(input.cboMonth->view(), Qt::Key_Return);
        QCOMPARE(input.cboMonth->currentText(), u"January"_s);
        QCOMPARE(Page(), u"Picture1"_s);
        Activate();
    }

    void EnterBelongsToTheInputMethodWhileItComposes() {
        EnterSomebody();
        input.txtLastName->setFocus();
        QInputMethodEvent composing(u"wa"_s, {});
        QApplication::sendEvent(input.txtLastName, &composing);
        QTest::keyClick(input.txtLastName, Qt::Key_Return);
        QCOMPARE(Page(), u"Picture1"_s);
        QInputMethodEvent done;
        done.setCommitString(u"\u308F"_s);
        QApplication::sendEvent(input.txtLastName, &done);
        QTest::keyClick(input.txtLastName, Qt::Key_Return);
        QCOMPARE(Page(), u"Picture2"_s);
    }

    void EnterWithAnotherKeyDoesNothing() {
        EnterSomebody();
        for (const auto modifier : {Qt::AltModifier, Qt::ControlModifier, Qt::ShiftModifier})
            QTest::keyClick(input.txtLastName, Qt::Key_Return, modifier);
        QCOMPARE(Page(), u"Picture1"_s);
    }
};

ORRAVANE_TEST_PROGRAM(KeyboardTest)

#include "keyboard_test.moc"
