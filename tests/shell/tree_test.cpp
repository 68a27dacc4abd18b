#include "core/reading_store.h"
#include "core/user_profile.h"
#include "report/rendering.h"
#include "tests/report/expected_report.h"
#include "tests/shell/program.h"

#include <optional>

using modReadings::store;

// The tree of topics: how it stands, and what a click on each node does.

class TreeTest : public QObject {
    Q_OBJECT

public:
    explicit TreeTest(const TemporaryHome &) {}

private:
    std::optional<Program> program_;

    static QString Caption(std::u16string_view caption) { return QStringView(caption).toString(); }

    QTreeWidgetItem *Node(const char *caption) const {
        return program_->Node(QString::fromLatin1(caption));
    }
    void Click(const char *caption) { program_->ClickNode(QString::fromLatin1(caption)); }

    bool IsSelectedAlone(const char *caption) const {
        return program_->TV.selectedItems() == QList<QTreeWidgetItem *>{Node(caption)};
    }

    /// The page that a topic has to show, from the store as it stands.
    static std::u16string PageOf(std::u16string_view caption) {
        std::u16string text;
        for (const modReadings::Run &run : modReadings::ExpectedPage(caption))
            text += run.text;
        return text;
    }

    /// Presses the little triangle beside a node.
    void PressTriangleOf(const char *caption) {
        const QRect place = program_->TV.visualItemRect(Node(caption));
        QTest::mouseClick(
            program_->TV.viewport(), Qt::LeftButton, {},
            QPoint(place.left() - program_->TV.indentation() / 2, place.center().y()));
    }

    void AddTopics() const {
        QTest::addColumn<QString>("caption");
        for (const std::u16string_view caption : modReadings::treeOrder)
            QTest::newRow(qPrintable(Caption(caption))) << Caption(caption);
    }

private slots:
    void init() { program_.emplace(); }
    void cleanup() { program_.reset(); }

    // --- How it stands

    void HasItsNodesInTheirPlaces() {
        const TopicTreeView &TV = program_->TV;
        QCOMPARE(TV.topLevelItemCount(), 3);
        QCOMPARE(TV.topLevelItem(0)->text(0), QStringLiteral("User Information"));
        QCOMPARE(TV.topLevelItem(1)->text(0), QStringLiteral("Numerology"));
        QCOMPARE(TV.topLevelItem(2)->text(0), QStringLiteral("Help"));

        QCOMPARE(TV.topLevelItem(0)->childCount(), 2);
        QCOMPARE(TV.topLevelItem(0)->child(0)->text(0), QStringLiteral("Enter The Information"));
        QCOMPARE(TV.topLevelItem(0)->child(1)->text(0), QStringLiteral("Reset"));

        QCOMPARE(TV.topLevelItem(1)->childCount(), 23);
        for (int index = 0; index < 22; ++index)
            QCOMPARE(TV.topLevelItem(1)->child(index)->text(0),
                     Caption(modReadings::treeOrder[static_cast<std::size_t>(index)]));
        QCOMPARE(TV.topLevelItem(1)->child(22)->text(0), QStringLiteral("Comprehensive Reading"));
        QCOMPARE(TV.topLevelItem(2)->childCount(), 0);
    }

    void OnlyTheComprehensiveReadingIsBoldAndNoNodeHasAnImage() {
        for (QTreeWidgetItemIterator node(&program_->TV); *node != nullptr; ++node) {
            QCOMPARE((*node)->font(0).bold(),
                     (*node)->text(0) == QLatin1StringView("Comprehensive Reading"));
            QVERIFY((*node)->icon(0).isNull());
        }
    }

    void StartsOnResetWithTheUserBranchOpen() {
        QVERIFY(IsSelectedAlone("Reset"));
        QVERIFY(Node("User Information")->isExpanded());
        QVERIFY(!Node("Numerology")->isExpanded());
        QVERIFY(!Node("Help")->isExpanded());
    }

    void ProceedPutsItInTheReadingState() {
        program_->ProceedWithSomebody();
        QVERIFY(IsSelectedAlone("Personal Month"));
        QVERIFY(Node("Numerology")->isExpanded());
        QVERIFY(!Node("User Information")->isExpanded());
        QVERIFY(program_->TV.viewport()->rect().intersects(
            program_->TV.visualItemRect(Node("Personal Month"))));
    }

    void ProceedSelectsThePersonalMonthWhicheverNodeWasSelected_data() {
        QTest::addColumn<QString>("before");
        for (const char *before : {"User Information", "Enter The Information", "Help",
                                   "Numerology", "Essence", "Comprehensive Reading"})
            QTest::newRow(before) << QString::fromLatin1(before);
    }
    void ProceedSelectsThePersonalMonthWhicheverNodeWasSelected() {
        QFETCH(QString, before);
        program_->EnterSomebody();
        program_->ClickNode(before);
        program_->form.cmdNext->click();
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(IsSelectedAlone("Personal Month"));
        QVERIFY(Node("Numerology")->isExpanded());
        QVERIFY(!Node("User Information")->isExpanded());
    }

    void ProceedShowsWhatAClickOnThePersonalMonthShows() {
        program_->ProceedWithSomebody();
        const std::u16string shown = program_->ReportText();
        QVERIFY(shown.starts_with(u"Your Personal Month is: 8\r\n\r\n")); // 2 + 3 + 2 + 1
        QCOMPARE(shown, PageOf(u"Personal Month"));
        Click("Personal Month");
        QCOMPARE(program_->ReportText(), shown);
    }

    void ProceedWritesThePersonalMonthThatThePassWorkedOut() {
        // The pass comes to the Personal Month first and to the names behind it.
        program_->Enter(QStringLiteral("OAK"), {}, QStringLiteral("RIVER5"),
                        QStringLiteral("December"), QStringLiteral("29"), QStringLiteral("1985"));
        program_->Proceed();
        VERIFY_DIALOGS(program_->dialogs);
        // Day 29 gives 2, December 3, November 2, 2026 1.
        QVERIFY(program_->ReportText().starts_with(u"Your Personal Month is: 8\r\n\r\n"));
        QCOMPARE(store.PersonalMonthNumber, std::int16_t{8});

        Click("Personal Month");
        // Now a 5 is left of the name, and December counts 5: 2 + 5 + 2 + 1 = 10.
        QVERIFY(program_->ReportText().starts_with(u"Your Personal Month is: 1\r\n\r\n"));
    }

    // --- Clicks

    void AClickOnATopicShowsIt_data() { AddTopics(); }
    void AClickOnATopicShowsIt() {
        QFETCH(QString, caption);
        program_->ProceedWithSomebody();
        Click("Help");
        program_->ClickNode(caption);
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(program_->ReportText(), PageOf(caption.toStdU16String()));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
        QVERIFY(program_->TV.selectedItems() == QList<QTreeWidgetItem *>{program_->Node(caption)});
    }

    void EnterOnATopicShowsIt_data() { AddTopics(); }
    void EnterOnATopicShowsIt() {
        QFETCH(QString, caption);
        program_->ProceedWithSomebody();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            Click("Help");
            program_->TV.setCurrentItem(program_->Node(caption));
            QTest::keyClick(&program_->TV, key);
            QCOMPARE(program_->ReportText(), PageOf(caption.toStdU16String()));
            QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
        }
    }

    void AClickTwiceGivesTheSameTextOnce_data() {
        AddTopics();
        QTest::newRow("Comprehensive Reading") << QStringLiteral("Comprehensive Reading");
    }
    void AClickTwiceGivesTheSameTextOnce() {
        QFETCH(QString, caption);
        program_->ProceedWithSomebody();
        program_->ClickNode(caption);
        const std::u16string once = program_->ReportText();
        QVERIFY(!once.empty());
        program_->ClickNode(caption);
        QCOMPARE(program_->ReportText(), once);
    }

    void TheComprehensiveReadingShowsAllTopics() {
        program_->ProceedWithSomebody();
        Click("Comprehensive Reading");
        const std::u16string text = program_->ReportText();
        std::u16string expected = u"Orravane Comprehensive Reading\r\n\r\n";
        for (const std::u16string_view caption : modReadings::readingOrder)
            for (const modReadings::Run &run : modReadings::ExpectedSection(caption))
                expected += run.text;
        QCOMPARE(text, expected);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
    }

    void KarmicDebtAndHPBridgeAreRightAtTheFirstClickBehindThePass() {
        program_->Enter(QStringLiteral("sky"), {}, QStringLiteral("lynn"), QStringLiteral("June"),
                        QStringLiteral("2"), QStringLiteral("1990"));
        program_->Proceed();
        QCOMPARE(store.KarmicDebtNumber, std::int16_t{0});
        Click("Karmic Debt Numbers"); // the two Y make a Soul Urge of 14
        QVERIFY(program_->ReportText().starts_with(u"Your Karmic Debt Number is: 14\r\n"));
        Click("H/P Bridge Number"); // 5 and 3
        QVERIFY(program_->ReportText().starts_with(u"Your HP Bridge Number is: 2\r\n"));
    }

    void TheUserAndHelpNodesTurnThePageWithoutAnyCheck() {
        // Nothing is entered: a check would have its message.
        Click("Help");
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture3);
        Click("User Information");
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture1);
        Click("Help");
        Click("Enter The Information");
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture1);
        VERIFY_DIALOGS(program_->dialogs);
    }

    void EnterTurnsThePagesToo() {
        for (const auto &[caption, page] :
             std::initializer_list<std::pair<const char *, QWidget *>>{
                 {"Help", program_->form.Picture3},
                 {"User Information", program_->form.Picture1},
                 {"Help", program_->form.Picture3},
                 {"Enter The Information", program_->form.Picture1},
                 {"Help", program_->form.Picture3},
                 {"Reset", program_->form.Picture1}}) {
            program_->TV.setCurrentItem(Node(caption));
            QTest::keyClick(&program_->TV, Qt::Key_Return);
            QCOMPARE(program_->form.FrontPage(), page);
        }
    }

    void ThePageInFrontIsTheOneThatIsSeen() {
        program_->ProceedWithSomebody();
        const QPoint corner = program_->form.Picture1->geometry().topLeft() + QPoint(2, 2);
        const auto seen = [&] { return program_->form.picMain->childAt(corner); };
        QCOMPARE(seen(), program_->form.Picture2);
        Click("Help");
        QCOMPARE(seen(), program_->form.Picture3);
        Click("User Information");
        QCOMPARE(seen(), program_->form.Picture1);
        for (QWidget *page : std::initializer_list<QWidget *>{
                 program_->form.Picture1, program_->form.Picture2, program_->form.Picture3}) {
            QVERIFY(page->isVisible()); // never hidden, and never moved
            QCOMPARE(page->geometry(), QRect(315, 56, 297, 347));
        }
    }

    void TheReportStaysWhilePagesAreTurned() {
        program_->ProceedWithSomebody();
        Click("Balance Number");
        const std::u16string report = program_->ReportText();
        Click("Help");
        Click("User Information");
        QCOMPARE(program_->ReportText(), report);
    }

    void NumerologyWithAnEmptyNameAsksForItAndTurnsNoPage() {
        Click("Help");
        SeenMessage seen;
        program_->dialogs.PlanToPress(QMessageBox::Ok, &seen);
        Click("Numerology");
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(seen.text, QStringLiteral("Please Enter Your First Name"));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture3);
        QCOMPARE(program_->Focus(), program_->input.txtFirstName);
    }

    void NumerologyWithAllInputsDoesNothing() {
        program_->ProceedWithSomebody();
        Click("Help");
        const std::u16string report = program_->ReportText();
        Click("Numerology");
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture3);
        QCOMPARE(program_->ReportText(), report);
    }

    void TheComprehensiveReadingWithAnEmptyNameKeepsTheReport() {
        program_->ProceedWithSomebody();
        const std::u16string report = program_->ReportText();
        program_->input.txtLastName->clear();
        SeenMessage seen;
        program_->dialogs.PlanToPress(QMessageBox::Ok, &seen);
        Click("Comprehensive Reading");
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(seen.text, QStringLiteral("Please Enter Your Last Name"));
        QCOMPARE(program_->ReportText(), report);
    }

    void AClickBeforeAnyProceedReadsAnEmptyProfile() {
        program_->EnterSomebody();
        Click("Personal Month"); // 0 + 0 + 2 for November + 1 for 2026
        QVERIFY(program_->ReportText().starts_with(u"Your Personal Month is: 3\r\n\r\n"));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);

        Click("Enter The Information");
        Click("Birthday Number");
        QCOMPARE(program_->ReportText(), std::u16string(u"\r\n\r\n"));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);

        Click("Comprehensive Reading");
        QVERIFY(program_->ReportText().starts_with(
            u"Orravane Comprehensive Reading\r\n\r\nYour Personal Month is: 3\r\n\r\n"));
        QVERIFY(program_->ReportText().find(u"BirthDay") == std::u16string::npos);
        VERIFY_DIALOGS(program_->dialogs);
    }

    void ATopicClickFollowsTheClock() {
        program_->ProceedWithSomebody();
        Click("Personal Day"); // 2 + 3 + 7 + 2 + 1 = 15
        QVERIFY(program_->ReportText().starts_with(u"Your Personal Day is: 6\r\n"));
        program_->clock.Advance(1); // the 17th counts 8
        Click("Personal Day");
        QVERIFY(program_->ReportText().starts_with(u"Your Personal Day is: 7\r\n"));
    }

    // --- What is no click

    void SelectingFromCodeRunsNothing() {
        program_->ProceedWithSomebody();
        Click("Help");
        const std::u16string report = program_->ReportText();
        program_->TV.setCurrentItem(Node("Essence"));
        Node("Balance Number")->setSelected(true);
        QCOMPARE(program_->ReportText(), report);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture3);
    }

    void ArrowsAndLettersMoveAndRunNothing() {
        program_->ProceedWithSomebody();
        const std::u16string report = program_->ReportText();
        program_->TV.setFocus();
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home,
                                  Qt::Key_PageDown, Qt::Key_PageUp})
            QTest::keyClick(&program_->TV, key);
        QTest::keyClicks(&program_->TV, QStringLiteral("Ess"));
        QCOMPARE(program_->TV.currentItem(), Node("Essence")); // they do move
        QCOMPARE(program_->ReportText(), report);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
        VERIFY_DIALOGS(program_->dialogs);
    }

    void OpeningAndClosingABranchRunsNothing() {
        PressTriangleOf("Numerology"); // a click on the node itself would ask for a name
        QVERIFY(Node("Numerology")->isExpanded());
        PressTriangleOf("Numerology");
        QVERIFY(!Node("Numerology")->isExpanded());
        program_->TV.setCurrentItem(Node("Numerology"));
        QTest::keyClick(&program_->TV, Qt::Key_Right);
        QVERIFY(Node("Numerology")->isExpanded());
        QTest::keyClick(&program_->TV, Qt::Key_Left);
        QVERIFY(!Node("Numerology")->isExpanded());
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture1);
    }

    void ATopicClickOpensAndClosesNoBranch() {
        program_->ProceedWithSomebody();
        Node("User Information")->setExpanded(true);
        Click("Essence");
        QVERIFY(Node("User Information")->isExpanded());
        QVERIFY(Node("Numerology")->isExpanded());
    }

    void AClickBesideTheNodesRunsNothing() {
        const QRect last = program_->TV.visualItemRect(Node("Help"));
        const QPoint below(last.center().x(), last.bottom() + 30);
        QVERIFY(program_->TV.viewport()->rect().contains(below));
        QTest::mouseClick(program_->TV.viewport(), Qt::LeftButton, {}, below);
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture1);
    }
};

ORRAVANE_TEST_PROGRAM(TreeTest)

#include "tree_test.moc"
