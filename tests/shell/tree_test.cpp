#include "tests/support/store_slots.h" // before the toolkit, which has a SLOT of its own

#include "core/runtime_failure.h"
#include "numbers/calculators.h"
#include "report/rendering.h"
#include "shell/style.h"
#include "tests/shell/window_test.h"

#include <QTextBlock>

// The tree of topics: how it stands, and what a click on each node does.

using namespace modReadings;

namespace {

/// The calculator of each topic, in the order of the tree.
constexpr Calculator calculators[] = {
    CalcPersonalMonth, CalcHiddenPassion,    CalcLifePathPeriods, CalcPersonalYear,
    CalcPinnacles,     CalcSubconsciousSelf, CalcLifePath,        CalcDestiny,
    CalcKarmicLessons, CalcBirthday,         CalcChallenges,      CalcKarmicDebt,
    CalcBalance,       CalcPersonalDay,      CalcRationalThought, CalcHPBridge,
    CalcLEBridge,      CalcEssence,          CalcRealization,     CalcInnerDreams,
    CalcPlanes,        CalcSoulUrge};

QStringList TopicCaptions() {
    QStringList captions;
    for (const QStringList &row : TableRows(u"topics.csv"_s))
        captions << row[0];
    return captions;
}

/// Fails the test unless the store is exactly as `expected`.
#define COMPARE_STORE(expected)                                                                    \
    do {                                                                                           \
        QStringList unlike;                                                                        \
        for (const std::string &slot : Changed(expected, store))                                   \
            unlike << QString::fromStdString(slot);                                                \
        QCOMPARE(unlike, QStringList());                                                           \
    } while (false)

} // namespace

class TreeTest : public WindowTest {
    Q_OBJECT

    const ReadingStore marked_ = MarkedStore();
    const Report someReport_{{u"some report", false}};
    QString pageBefore_;

    /// The five inputs that are asked for, in the order in which they are.
    const QList<std::pair<QWidget *, QString>> required_{
        {input.txtFirstName, u"Enter Your First Name"_s},
        {input.txtLastName, u"Enter Your Last Name"_s},
        {input.cboDate, u"Specify Your Birth Date"_s},
        {input.cboMonth, u"Specify Your Birth Month"_s},
        {input.cboYear, u"Specify Your Birth Year"_s}};

    /// All that a click could change is put to values of its own. In front is a page that
    /// the click on `caption` does not lead to.
    void PrepareForClickOn(const QString &caption) {
        input.txtFirstName->setText(u"OAK"_s);
        input.txtLastName->setText(u"RIVER"_s);
        for (QComboBox *list : {input.cboDate, input.cboMonth, input.cboYear})
            list->setCurrentIndex(0);
        profile = {u"SKY", u"", u"LYNN", u"June", u"2", u"1990"}; // of an earlier Proceed
        store = marked_;
        RTB.ShowReport(someReport_);
        form.TV_NodeClick(Node(caption == u"Help" ? u"User Information"_s : u"Help"_s));
        pageBefore_ = Page();
    }

    /// Presses the little triangle beside a node.
    void PressTriangleOf(const QString &caption) {
        const QRect place = TV.visualItemRect(Node(caption));
        QTest::mouseClick(TV.viewport(), Qt::LeftButton, {},
                          QPoint(place.left() - TV.indentation() / 2, place.center().y()));
    }

private slots:
    // --- How it stands

    void HasItsNodesInTheirPlaces() {
        QStringList nodes; // with a dot before the caption of a child
        for (QTreeWidgetItemIterator node(&TV); *node != nullptr; ++node)
            nodes << QString((*node)->parent() != nullptr ? u"."_s : QString()) + (*node)->text(0);
        QStringList expected{u"User Information"_s, u".Enter The Information"_s, u".Reset"_s,
                             u"Numerology"_s};
        for (const QString &caption : TopicCaptions())
            expected << u'.' + caption;
        QCOMPARE(expected.size(), 26);
        expected << u".Comprehensive Reading"_s << u"Help"_s;
        QCOMPARE(nodes, expected);
    }

    void OnlyTheComprehensiveReadingIsBoldAndNoNodeHasAnImage() {
        for (QTreeWidgetItemIterator node(&TV); *node != nullptr; ++node) {
            QCOMPARE((*node)->font(0).bold(), (*node)->text(0) == u"Comprehensive Reading");
            QVERIFY((*node)->icon(0).isNull());
        }
        // It differs from the others by its weight alone.
        QFont font = Node(u"Comprehensive Reading"_s)->font(0).resolve(TV.font());
        font.setBold(false);
        const QFont others = Node(u"Essence"_s)->font(0).resolve(TV.font());
        QCOMPARE(font.families(), others.families());
        QCOMPARE(font.pixelSize(), others.pixelSize());
        QCOMPARE(font.pixelSize(), WindowFont().pixelSize());
        QCOMPARE(QFontInfo(font).family(), QFontInfo(others).family());
        font.setFamilies(others.families());
        QCOMPARE(font, others);
    }

    void ProceedWritesToTheTreeInItsOrder() {
        EnterSomebody();
        ClickNode(u"Enter The Information"_s); // its branch will close over it
        QStringList order;
        const QObject listener;
        connect(&TV, &QTreeWidget::itemExpanded, &listener,
                [&](QTreeWidgetItem *node) { order << u"opens "_s + node->text(0); });
        connect(&TV, &QTreeWidget::itemCollapsed, &listener,
                [&](QTreeWidgetItem *node) { order << u"closes "_s + node->text(0); });
        connect(&TV, &QTreeWidget::itemSelectionChanged, &listener, [&] {
            const auto selected = TV.selectedItems();
            order << u"selects "_s + (selected.isEmpty() ? u"nothing"_s : selected[0]->text(0));
        });
        Proceed();
        QCOMPARE(order, (QStringList{u"opens Numerology"_s, u"selects Personal Month"_s,
                                     u"closes User Information"_s}));
    }

    void ProceedOpensNumerologyAtThePersonalMonth() {
        for (const QString &before : {u"User Information"_s, u"Enter The Information"_s, u"Help"_s,
                                      u"Numerology"_s, u"Essence"_s, u"Comprehensive Reading"_s}) {
            EnterSomebody();
            ClickNode(before);
            form.cmdNext->click();
            QVERIFY(IsSelected(u"Personal Month"_s));
            QVERIFY(Node(u"Numerology"_s)->isExpanded());
            QVERIFY(!Node(u"User Information"_s)->isExpanded());
            QVERIFY(TV.viewport()->rect().intersects(TV.visualItemRect(Node(u"Personal Month"_s))));
            QCOMPARE(Page(), u"Picture2"_s);
        }
    }

    void ProceedOnceMoreLeavesReportTreeAndPageAsTheyAre() {
        ProceedWithSomebody();
        form.cmdNext->click(); // Karmic Debt and H/P Bridge rest on this person's own names now
        const Report report = RTB.ShownReport();
        const ReadingStore filled = store;
        QStringList changes;
        const QObject listener;
        connect(&TV, &QTreeWidget::itemExpanded, &listener, [&] { changes << u"opens"_s; });
        connect(&TV, &QTreeWidget::itemCollapsed, &listener, [&] { changes << u"closes"_s; });
        connect(&TV, &QTreeWidget::itemSelectionChanged, &listener,
                [&] { changes << u"selects"_s; });
        form.cmdNext->click();
        COMPARE_STORE(filled);
        QVERIFY(RTB.ShownReport() == report);
        QCOMPARE(changes, QStringList());
        QVERIFY(IsSelected(u"Personal Month"_s));
        QCOMPARE(Page(), u"Picture2"_s);
        ClickNode(u"Personal Month"_s);
        QVERIFY(RTB.ShownReport() == report); // which is what a click gives
    }

    // --- Clicks

    /// Every node with its page; empty where a click turns none.
    void EveryClickDoesWhatItsCaptionSays_data() {
        QTest::addColumn<QString>("page");
        QTest::addColumn<int>("topic"); // its place in the tree; 22 for all of them, -1 for none
        QTest::addColumn<QString>("heading");
        const auto add = [](const QString &caption, const char *page, qsizetype topic,
                            const QString &heading) {
            QTest::newRow(qPrintable(caption))
                << QString::fromLatin1(page) << static_cast<int>(topic) << heading;
        };
        add(u"User Information"_s, "Picture1", -1, {});
        add(u"Enter The Information"_s, "Picture1", -1, {});
        add(u"Reset"_s, "Picture1", -1, {});
        add(u"Numerology"_s, "", -1, {});
        const QList<QStringList> topics = TableRows(u"topics.csv"_s);
        QCOMPARE(topics.size(), 22);
        for (qsizetype topic = 0; topic < 22; ++topic)
            add(topics[topic][0], "Picture2", topic, topics[topic][1]);
        add(u"Comprehensive Reading"_s, "Picture2", 22, u"Orravane Comprehensive Reading"_s);
        add(u"Help"_s, "Picture3", -1, {});
    }
    void EveryClickDoesWhatItsCaptionSays() {
        QFETCH(QString, page);
        QFETCH(int, topic);
        QFETCH(QString, heading);
        const QString caption = QString::fromLatin1(QTest::currentDataTag());

        // What becomes of store and report.
        PrepareForClickOn(caption);
        Report report = someReport_;
        if (topic == 22) {
            report = RenderComprehensiveReading();
        } else if (topic >= 0) {
            Attempt(calculators[topic]);
            report = RenderTopic(*FindTopic(caption.toStdU16String()));
        }
        const ReadingStore results = store;
        if (topic >= 0) {
            QVERIFY(report[0].bold);
            QVERIFY2(QStringView(report[0].text).startsWith(heading), qPrintable(heading));
            QVERIFY(!Changed(marked_, results).empty());
        }

        // With all inputs, by the mouse and by both Enter keys. One report is written, while
        // the page before is still in front.
        QStringList pagesAtWrite;
        const QObject listener;
        for (const Qt::Key key : {Qt::Key_unknown, Qt::Key_Return, Qt::Key_Enter}) {
            PrepareForClickOn(caption);
            pagesAtWrite.clear();
            connect(&RTB, &RichTextBox::changed, &listener, [&] { pagesAtWrite << Page(); });
            if (key == Qt::Key_unknown) {
                ClickNode(caption);
                QVERIFY(IsSelected(caption));
            } else {
                TV.setCurrentItem(Node(caption));
                QTest::keyClick(&TV, key);
            }
            disconnect(&RTB, nullptr, &listener, nullptr);
            COMPARE_STORE(results);
            QVERIFY(RTB.ShownReport() == report);
            QCOMPARE(Page(), page.isEmpty() ? pageBefore_ : page);
            QCOMPARE(pagesAtWrite, topic >= 0 ? QStringList{pageBefore_} : QStringList());
            QCOMPARE(profile.FirstName, u"SKY"s); // a click captures nothing
        }

        // With inputs missing, from the first, the second ... on.
        const bool validates = topic >= 0 || page.isEmpty();
        for (qsizetype first = 0; first < required_.size(); ++first) {
            PrepareForClickOn(caption);
            for (qsizetype missing = first; missing < required_.size(); ++missing) {
                if (auto *box = qobject_cast<QLineEdit *>(required_[missing].first))
                    box->clear();
                else
                    qobject_cast<QComboBox *>(required_[missing].first)->setCurrentIndex(-1);
            }
            if (!validates) {
                ClickNode(caption); // a message would be one that nobody planned
            } else {
                QCOMPARE(dialogs.MessageOf([&] { ClickNode(caption); }),
                         u"Critical, Orravane: Please %1 [OK]"_s.arg(required_[first].second));
                QCOMPARE(Focus(), required_[first].first);
            }
            COMPARE_STORE(marked_);
            QVERIFY(RTB.ShownReport() == someReport_);
            QCOMPARE(Page(), validates ? pageBefore_ : page);
        }
    }

    void ProceedWritesThePersonalMonthThatThePassWorkedOut() {
        // The pass comes to the Personal Month first and to the names behind it.
        Enter(u"OAK"_s, {}, u"RIVER5"_s, u"December"_s, 29, 1985);
        Proceed();
        // Day 29 gives 2, December 3, November 2, 2026 1.
        QVERIFY(ReportText().starts_with(u"Your Personal Month is: 8\r\n\r\n"));
        QCOMPARE(int{store.PersonalMonthNumber}, 8);

        ClickNode(u"Personal Month"_s);
        // Now a 5 is left of the name, and December counts 5: 2 + 5 + 2 + 1 = 10.
        QVERIFY(ReportText().starts_with(u"Your Personal Month is: 1\r\n\r\n"));
    }

    void KarmicDebtAndHPBridgeAreRightAtTheFirstClickBehindThePass() {
        Enter(u"sky"_s, {}, u"lynn"_s, u"June"_s, 2, 1990);
        Proceed();
        QCOMPARE(int{store.KarmicDebtNumber}, 0);
        ClickNode(u"Karmic Debt Numbers"_s); // the two Y make a Soul Urge of 14
        QVERIFY(ReportText().starts_with(u"Your Karmic Debt Number is: 14\r\n"));
        ClickNode(u"H/P Bridge Number"_s); // 5 and 3
        QVERIFY(ReportText().starts_with(u"Your HP Bridge Number is: 2\r\n"));
    }

    void AClickBeforeAnyProceedReadsAnEmptyProfile() {
        EnterSomebody();
        ClickNode(u"Personal Month"_s); // 0 + 0 + 2 for November + 1 for 2026
        QVERIFY(ReportText().starts_with(u"Your Personal Month is: 3\r\n\r\n"));
        ClickNode(u"Help"_s); // the next report has to turn the page
        ClickNode(u"Birthday Number"_s);
        QCOMPARE(ReportText(), u"\r\n\r\n"s);
        QCOMPARE(Page(), u"Picture2"_s);
        ClickNode(u"Comprehensive Reading"_s);
        QVERIFY(ReportText().starts_with(
            u"Orravane Comprehensive Reading\r\n\r\nYour Personal Month is: 3\r\n\r\n"));
        QVERIFY(ReportText().find(u"BirthDay") == std::u16string::npos);
    }

    void TheInkBeforeAnyProceedIsThatOfEveryReading() {
        // In a window of its own, whose pane has never held a report.
        for (const QString &caption :
             {u"Birthday Number"_s, u"Personal Month"_s, u"Comprehensive Reading"_s}) {
            ReportPage page(nullptr);
            form.TV_NodeClick(Node(u"Help"_s));
            EnterSomebody();
            ClickNode(caption);
            page.RTB->ShowReport(RTB.ShownReport());
            for (const RichTextBox *pane : {page.RTB, &RTB}) {
                const QColor magenta(128, 0, 128);
                for (QTextBlock block = pane->document()->begin(); block.isValid();
                     block = block.next()) {
                    QCOMPARE(block.charFormat().foreground().color(), magenta);
                    for (auto part = block.begin(); !part.atEnd(); ++part)
                        QCOMPARE(part.fragment().charFormat().foreground().color(), magenta);
                }
                QCOMPARE(pane->textCursor().charFormat().foreground().color(), magenta);
                QCOMPARE(pane->textCursor().blockCharFormat().foreground().color(), magenta);
            }
        }
    }

    void ThePageInFrontIsTheOneThatIsSeen() {
        const QRect place = form.Picture1->geometry();
        for (const auto &[caption, page] : std::initializer_list<std::pair<QString, QWidget *>>{
                 {u"Help"_s, form.Picture3},
                 {u"Essence"_s, form.Picture2},
                 {u"User Information"_s, form.Picture1}}) {
            EnterSomebody();
            ClickNode(caption);
            QCOMPARE(form.picMain->childAt(place.topLeft() + QPoint(2, 2)), page);
            QVERIFY(page->isVisible()); // never hidden, and never moved
            QCOMPARE(page->geometry(), place);
        }
    }

    // --- What is no click

    void OnlyAClickOnANodeCounts() {
        PrepareForClickOn(u"Numerology"_s);
        TV.setFocus();

        TV.setCurrentItem(Node(u"Balance Number"_s)); // selecting from code
        Node(u"Balance Number"_s)->setSelected(true);
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home,
                                  Qt::Key_PageDown, Qt::Key_PageUp})
            QTest::keyClick(&TV, key);
        QTest::keyClicks(&TV, u"Ess"_s);
        QVERIFY(IsSelected(u"Essence"_s)); // they do move

        TV.collapseAll(); // opening and closing a branch
        PressTriangleOf(u"Numerology"_s);
        QVERIFY(Node(u"Numerology"_s)->isExpanded());
        PressTriangleOf(u"Numerology"_s);
        QVERIFY(!Node(u"Numerology"_s)->isExpanded());
        TV.setCurrentItem(Node(u"Numerology"_s));
        QTest::keyClick(&TV, Qt::Key_Right);
        QVERIFY(Node(u"Numerology"_s)->isExpanded());
        QTest::keyClick(&TV, Qt::Key_Left);
        QVERIFY(!Node(u"Numerology"_s)->isExpanded());

        const QRect last = TV.visualItemRect(Node(u"Help"_s)); // beside the nodes
        const QPoint below(last.center().x(), last.bottom() + 30);
        QVERIFY(TV.viewport()->rect().contains(below));
        QTest::mouseClick(TV.viewport(), Qt::LeftButton, {}, below);

        COMPARE_STORE(marked_);
        QVERIFY(RTB.ShownReport() == someReport_);
        QCOMPARE(Page(), pageBefore_);
    }

    void OneNodeIsAlwaysSelected() {
        ClickNode(u"Enter The Information"_s);
        const QRect last = TV.visualItemRect(Node(u"Help"_s));
        const QPoint below(last.center().x(), last.bottom() + 30);
        const QPoint onNode = TV.visualItemRect(Node(u"Enter The Information"_s)).center();
        for (const auto modifier : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier}) {
            QTest::mouseClick(TV.viewport(), Qt::LeftButton, modifier, below);
            QVERIFY(IsSelected(u"Enter The Information"_s));
            QTest::mouseClick(TV.viewport(), Qt::RightButton, modifier, below);
            QVERIFY(IsSelected(u"Enter The Information"_s));
            for (int times = 0; times < 2; ++times) {
                QTest::mouseClick(TV.viewport(), Qt::LeftButton, modifier, onNode);
                QVERIFY(IsSelected(u"Enter The Information"_s));
            }
        }
        QTest::keyClick(&TV, Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(IsSelected(u"Enter The Information"_s));
        QTest::mouseClick(TV.viewport(), Qt::LeftButton, Qt::ControlModifier, last.center());
        QVERIFY(IsSelected(u"Help"_s));
    }

    void AClickCountsAlsoWhereTheReleaseBeforeItWentToADialog() {
        const auto middle = [&](const QString &caption) {
            return QPointF(TV.visualItemRect(Node(caption)).center());
        };
        const auto drag = [&] {
            QTest::mousePress(TV.viewport(), Qt::LeftButton, {},
                              middle(u"Enter The Information"_s).toPoint());
            const QPointF onReset = middle(u"Reset"_s);
            QMouseEvent move(QEvent::MouseMove, onReset, TV.viewport()->mapToGlobal(onReset),
                             Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(TV.viewport(), &move);
            QVERIFY(IsSelected(u"Reset"_s));
        };
        drag();
        ClickNode(u"Help"_s);
        QVERIFY(IsSelected(u"Help"_s));
        QCOMPARE(Page(), u"Picture3"_s);
        drag();
        QTest::mouseDClick(TV.viewport(), Qt::LeftButton, {}, middle(u"Help"_s).toPoint());
        QVERIFY(IsSelected(u"Help"_s));
    }

    void TheReleaseOfAPressBesideTheNodesSelectsNothing() {
        EnterSomebody();
        TV.collapseAll();
        ClickNode(u"Numerology"_s);
        const QRect last = TV.visualItemRect(Node(u"Help"_s));
        const QPoint below(last.center().x(), last.bottom() + 30);
        QVERIFY(TV.itemAt(below) == nullptr);
        QTest::mousePress(TV.viewport(), Qt::LeftButton, {}, below);
        QTest::keyClick(&TV, Qt::Key_Right); // opens the branch
        QVERIFY(TV.itemAt(below) != nullptr);
        QTest::mouseRelease(TV.viewport(), Qt::LeftButton, {}, below);
        QVERIFY(IsSelected(u"Numerology"_s));
    }

    void NoClickSelectsANodeOrOpensOrClosesABranchByItself() {
        for (const bool open : {false, true}) {
            for (QTreeWidgetItemIterator node(&TV); *node != nullptr; ++node) {
                EnterSomebody(); // "Reset" empties the boxes
                if (open)
                    TV.expandAll();
                else
                    TV.collapseAll();
                TV.setCurrentItem(Node(u"Help"_s));
                form.TV_NodeClick(*node);
                QVERIFY2(IsSelected(u"Help"_s), qPrintable((*node)->text(0)));
                for (int root = 0; root < 2; ++root)
                    QCOMPARE(TV.topLevelItem(root)->isExpanded(), open);
            }
        }
    }
};

ORRAVANE_TEST_PROGRAM(TreeTest)

#include "tree_test.moc"
