#include "core/user_profile.h"
#include "tests/shell/program.h"

#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>

#include <optional>

using modReadings::profile;

// The window without a mouse. A button that is reached by its letter goes down first and
// clicks a moment later, so its effect is waited for.

class KeyboardTest : public QObject {
    Q_OBJECT

public:
    explicit KeyboardTest(const TemporaryHome &) {}

private:
    std::optional<Program> program_;

    /// The names of the controls that the focus goes through, from the one that has it
    /// until it is there again.
    QStringList Round(Qt::KeyboardModifiers modifiers) {
        QStringList names;
        const QWidget *start = program_->Focus();
        do {
            names << program_->Focus()->objectName();
            QTest::keyClick(program_->Focus(), modifiers ? Qt::Key_Backtab : Qt::Key_Tab,
                            modifiers);
        } while (program_->Focus() != start && names.size() < 30);
        return names;
    }

    static QStringList Reversed(QStringList names) {
        std::reverse(names.begin() + 1, names.end()); // it begins where it begins
        return names;
    }

    const QStringList common_{QStringLiteral("TV"), QStringLiteral("picHelp"),
                              QStringLiteral("picExit"), QStringLiteral("lblHyperlink")};

private slots:
    void init() { program_.emplace(); }
    void cleanup() { program_.reset(); }

    void TheFocusStartsInTheFirstName() {
        QCOMPARE(program_->Focus(), program_->input.txtFirstName);
        QVERIFY(program_->input.txtFirstName->hasFocus());
    }

    void TabOnTheInputPage() {
        const QStringList expected =
            QStringList{QStringLiteral("txtFirstName"), QStringLiteral("txtMiddleName"),
                        QStringLiteral("txtLastName"),  QStringLiteral("cboMonth"),
                        QStringLiteral("cboDate"),      QStringLiteral("cboYear"),
                        QStringLiteral("picProceed")} +
            common_;
        QCOMPARE(Round({}), expected);
        QCOMPARE(Round(Qt::ShiftModifier), Reversed(expected));
    }

    void TabOnTheReportPageSkipsTheCoveredPages() {
        program_->ProceedWithSomebody();
        program_->RTB.setFocus();
        const QStringList expected = QStringList{QStringLiteral("RTB"), QStringLiteral("picPrint"),
                                                 QStringLiteral("picSave")} +
                                     common_;
        QCOMPARE(Round({}), expected);
        QCOMPARE(Round(Qt::ShiftModifier), Reversed(expected));
    }

    void TabOnTheHelpPageSkipsTheCoveredPages() {
        program_->form.mnuAbout->trigger();
        program_->form.Picture3->lblHelp[0]->setFocus();
        const QStringList expected =
            QStringList{QStringLiteral("lblHelp0"), QStringLiteral("lblHelp1")} + common_;
        QCOMPARE(Round({}), expected);
        QCOMPARE(Round(Qt::ShiftModifier), Reversed(expected));
    }

    void EveryStopShowsThatItHasTheFocus_data() {
        QTest::addColumn<QString>("caption");
        QTest::newRow("input page") << QStringLiteral("User Information");
        QTest::newRow("report page") << QStringLiteral("Personal Month");
        QTest::newRow("help page") << QStringLiteral("Help");
    }
    void EveryStopShowsThatItHasTheFocus() {
        QFETCH(QString, caption);
        program_->ProceedWithSomebody();
        program_->ClickNode(caption);
        const auto look = [this](const QWidget *stop) {
            QApplication::processEvents();
            const QRect place(stop->mapTo(&program_->form, QPoint()), stop->size());
            return program_->form.grab(place).toImage();
        };
        int stops = 0;
        const QWidget *start = program_->Focus();
        do {
            const QWidget *stop = program_->Focus();
            const QImage with = look(stop);
            QTest::keyClick(program_->Focus(), Qt::Key_Tab);
            const QImage without = look(stop);
            int changed = 0;
            for (int y = 0; y < with.height(); ++y)
                for (int x = 0; x < with.width(); ++x)
                    changed += with.pixel(x, y) != without.pixel(x, y);
            // More than a caret, which may blink or stand out of sight.
            QVERIFY2(
                changed >= 60,
                qPrintable(
                    QStringLiteral("%1 changes %2 pixels").arg(stop->objectName()).arg(changed)));
            ++stops;
        } while (program_->Focus() != start);
        QVERIFY(stops > 5);
    }

    void TheFocusDoesNotStayOnAPageThatIsCovered() {
        program_->EnterSomebody();
        program_->input.picProceed->setFocus();
        program_->Proceed();
        QVERIFY(!program_->form.Picture1->isAncestorOf(program_->Focus()));
        program_->RTB.setFocus();
        program_->form.mnuAbout->trigger();
        QVERIFY(!program_->form.Picture2->isAncestorOf(program_->Focus()));
        program_->form.Picture3->lblHelp[1]->setFocus();
        program_->ClickNode(QStringLiteral("User Information"));
        QVERIFY(!program_->form.Picture3->isAncestorOf(program_->Focus()));
    }

    void ImageButtonsAnswerEnterAndSpace() {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QTest::keyClick(program_->form.picHelp, key);
            QCOMPARE(program_->browser.Taken(),
                     QList<QUrl>{PageOfSite(QStringLiteral("/orravane-help/"))});
        }
        program_->EnterSomebody();
        QTest::keyClick(program_->input.picProceed, Qt::Key_Return);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
    }

    void AltPIsProceedOnTheInputPage() {
        program_->EnterSomebody();
        QTest::keyClick(program_->input.txtLastName, Qt::Key_P, Qt::AltModifier);
        QTRY_COMPARE(profile.LastName, std::u16string(u"RIVER"));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
        QCOMPARE(program_->input.txtLastName->text(), QStringLiteral("RIVER")); // not typed
    }

    void AltPIsProceedOnTheHelpPage() {
        program_->EnterSomebody();
        program_->form.mnuAbout->trigger();
        QTest::keyClick(&program_->form, Qt::Key_P, Qt::AltModifier);
        QTRY_COMPARE(profile.LastName, std::u16string(u"RIVER"));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
    }

    void AltPIsPrintOnTheReportPage() {
        program_->ProceedWithSomebody();
        program_->ClickNode(QStringLiteral("Essence"));
        const std::u16string report = program_->ReportText();
        program_->input.txtLastName->setText(QStringLiteral("OTHER"));
        program_->RTB.selectAll();
        QTest::keyClick(&program_->form, Qt::Key_P, Qt::AltModifier);
        QTRY_VERIFY(!program_->RTB.textCursor().hasSelection()); // what print does first
        QCOMPARE(profile.LastName, std::u16string(u"RIVER"));    // no Proceed
        QCOMPARE(program_->ReportText(), report);
    }

    void AltPGoesBackToProceedWithTheInputPage() {
        program_->ProceedWithSomebody();
        program_->ClickNode(QStringLiteral("User Information"));
        program_->input.txtLastName->setText(QStringLiteral("OTHER"));
        QTest::keyClick(&program_->form, Qt::Key_P, Qt::AltModifier);
        QTRY_COMPARE(profile.LastName, std::u16string(u"OTHER"));
    }

    void AltSOpensTheSaveDialog_data() {
        QTest::addColumn<QString>("caption");
        QTest::newRow("on the report page") << QStringLiteral("Essence");
        QTest::newRow("on the input page") << QStringLiteral("User Information");
        QTest::newRow("on the help page") << QStringLiteral("Help");
    }
    void AltSOpensTheSaveDialog() {
        QFETCH(QString, caption);
        program_->ProceedWithSomebody();
        program_->ClickNode(caption);
        bool isSaveDialog = false;
        program_->dialogs.Plan([&](QDialog &dialog) {
            const auto *files = qobject_cast<QFileDialog *>(&dialog);
            isSaveDialog = files != nullptr && files->acceptMode() == QFileDialog::AcceptSave;
            dialog.reject();
        });
        QTest::keyClick(&program_->form, Qt::Key_S, Qt::AltModifier);
        QTRY_VERIFY(isSaveDialog);
        VERIFY_DIALOGS(program_->dialogs);
    }

    void TheMenusOpenByTheirLetters() {
        QMenu *file = program_->form.menuBar()->actions().at(0)->menu();
        QTest::keyClick(&program_->form, Qt::Key_F, Qt::AltModifier);
        QTRY_VERIFY(file->isVisible());
        QTest::keyClick(file, Qt::Key_Escape);
        QTRY_VERIFY(!file->isVisible());

        QMenu *help = program_->form.menuBar()->actions().at(1)->menu();
        QTest::keyClick(&program_->form, Qt::Key_H, Qt::AltModifier);
        QTRY_VERIFY(help->isVisible());
        QTest::keyClick(help, Qt::Key_V);
        QTRY_VERIFY(!help->isVisible());
        QCOMPARE(program_->browser.Taken(), QList<QUrl>{PageOfSite(QStringLiteral("/"))});
    }

    void EnterInANameBoxDoesNothing() {
        program_->EnterSomebody();
        QTest::keyClick(program_->input.txtLastName, Qt::Key_Return);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture1);
        QCOMPARE(profile.LastName, std::u16string());
        VERIFY_DIALOGS(program_->dialogs);
    }
};

ORRAVANE_TEST_PROGRAM(KeyboardTest)

#include "keyboard_test.moc"
