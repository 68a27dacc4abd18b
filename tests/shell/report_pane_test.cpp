#include "report/rendering.h"
#include "tests/shell/program.h"

#include <QClipboard>
#include <QMimeData>
#include <QPrinterInfo>
#include <QScrollBar>
#include <QTextBlock>

#include <optional>

// The report pane: how a report stands in it, that it wipes the clipboard, and printing.

namespace {

/// What the pane held, and where it stood, each time that it was painted.
class PaintWitness : public QObject {
public:
    explicit PaintWitness(RichTextBox &pane) : pane_(pane) {
        pane.viewport()->installEventFilter(this);
    }

    QStringList texts;
    QList<int> scrolled;

    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Paint) {
            texts << pane_.toPlainText();
            scrolled << pane_.verticalScrollBar()->value();
        }
        return false;
    }

private:
    RichTextBox &pane_;
};

} // namespace

class ReportPaneTest : public QObject {
    Q_OBJECT

public:
    explicit ReportPaneTest(const TemporaryHome &) {}

private:
    std::optional<Program> program_;

    static constexpr auto copied = "copied by somebody";

    static void FillClipboard() {
        QApplication::clipboard()->setText(QString::fromLatin1(copied));
        QCOMPARE(QApplication::clipboard()->text(), QString::fromLatin1(copied));
    }

    static bool ClipboardIsEmpty() {
        const QMimeData *content = QApplication::clipboard()->mimeData();
        return content == nullptr || content->formats().isEmpty();
    }

    /// One mouse event over the middle of the pane, as the window system delivers it.
    void Mouse(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
        QWidget *pane = program_->RTB.viewport();
        const QPointF middle(pane->rect().center());
        QMouseEvent event(type, middle, pane->mapToGlobal(middle), button, held, Qt::NoModifier);
        QApplication::sendEvent(pane, &event);
    }

private slots:
    void init() {
        program_.emplace();
        program_->ProceedWithSomebody();
    }
    void cleanup() { program_.reset(); }

    // --- How a report stands in it

    void TheHeadingAloneIsBoldAndAllIsMagenta() {
        program_->ClickNode(QStringLiteral("Pinnacle Phases"));
        int characters = 0;
        for (QTextBlock block = program_->RTB.document()->begin(); block.isValid();
             block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                QCOMPARE(format.foreground().color(), QColor(128, 0, 128));
                QCOMPARE(format.fontWeight() == QFont::Bold, block.blockNumber() == 0);
                characters += part.fragment().length();
            }
        }
        QVERIFY(characters > 1000);
        QCOMPARE(program_->RTB.document()->begin().text(), QStringLiteral("Pinnacle Phases"));
    }

    void AReadingSetsNeitherFontNorParagraph() {
        for (QTextBlock block = program_->RTB.document()->begin(); block.isValid();
             block = block.next()) {
            QVERIFY(!block.blockFormat().hasProperty(QTextFormat::BlockAlignment));
            QVERIFY(!block.blockFormat().hasProperty(QTextFormat::BlockTopMargin));
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                QVERIFY(!format.hasProperty(QTextFormat::FontFamilies));
                QVERIFY(!format.hasProperty(QTextFormat::FontPointSize));
                QVERIFY(!format.hasProperty(QTextFormat::FontPixelSize));
                QVERIFY(!format.fontItalic() && !format.fontUnderline());
            }
        }
    }

    void ALineBreakIsOneParagraph() {
        // Heading, empty line, About, empty line, text.
        QCOMPARE(program_->RTB.document()->blockCount(), 5);
        QCOMPARE(program_->RTB.document()->findBlockByNumber(0).text(),
                 QStringLiteral("Your Personal Month is: 8"));
        QCOMPARE(program_->RTB.document()->findBlockByNumber(1).text(), QString());
        QVERIFY(program_->RTB.document()->findBlockByNumber(2).text().startsWith(
            QLatin1StringView("Personal month number tells about")));
    }

    void TheRunsOfThePaneAreThoseOfTheReport() {
        program_->ClickNode(QStringLiteral("Comprehensive Reading"));
        modReadings::RunList list;
        modReadings::RenderComprehensiveReading(list);
        // Neighbours of one format are one run in the pane.
        std::vector<modReadings::Run> expected;
        for (const modReadings::Run &run : list.Runs()) {
            if (!expected.empty() && expected.back().bold == run.bold)
                expected.back().text += run.text;
            else
                expected.push_back(run);
        }
        QVERIFY(expected.size() > 40);
        QVERIFY(program_->RTB.Runs() == expected);
    }

    void TheCaretStandsAtTheEndAndTheViewAtTheTop() {
        for (const char *caption : {"Comprehensive Reading", "Essence", "Comprehensive Reading"}) {
            program_->ClickNode(QString::fromLatin1(caption));
            QVERIFY(program_->RTB.textCursor().atEnd());
            QVERIFY(!program_->RTB.textCursor().hasSelection());
            QCOMPARE(program_->RTB.verticalScrollBar()->value(), 0);
        }
    }

    void TheViewGoesBackToTheTopForTheNextReport() {
        program_->ClickNode(QStringLiteral("Comprehensive Reading"));
        QScrollBar *bar = program_->RTB.verticalScrollBar();
        QVERIFY(bar->maximum() > 1000);
        bar->setValue(bar->maximum());
        program_->ClickNode(QStringLiteral("Pinnacle Phases"));
        QCOMPARE(bar->value(), 0);
    }

    void AReportIsPaintedOnceAndWhole_data() {
        QTest::addColumn<QString>("caption");
        QTest::newRow("a topic") << QStringLiteral("Essence");
        QTest::newRow("all of them") << QStringLiteral("Comprehensive Reading");
    }
    void AReportIsPaintedOnceAndWhole() {
        QFETCH(QString, caption);
        program_->ClickNode(QStringLiteral("Pinnacle Phases"));
        program_->RTB.verticalScrollBar()->setValue(100);
        program_->Node(caption)->treeWidget()->scrollToItem(program_->Node(caption));
        QApplication::processEvents();

        const PaintWitness witness(program_->RTB);
        program_->ClickNode(caption);
        QApplication::processEvents();
        QCOMPARE(witness.texts, QStringList{program_->RTB.toPlainText()});
        QCOMPARE(witness.scrolled, QList<int>{0});
        QVERIFY(!program_->RTB.toPlainText().startsWith(QStringLiteral("Pinnacle Phases")));
    }

    void ASelectionDoesNotStandInTheWayOfTheNextReport() {
        program_->RTB.selectAll();
        program_->ClickNode(QStringLiteral("Balance Number"));
        QVERIFY(program_->ReportText().starts_with(u"Your Balance Number is: 6\r\n\r\n"));
        QVERIFY(!program_->RTB.textCursor().hasSelection());
    }

    // --- What the user can do with it

    void ItCannotBeEdited() {
        const std::u16string report = program_->ReportText();
        program_->RTB.setFocus();
        QTest::keyClicks(&program_->RTB, QStringLiteral("text"));
        for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return})
            QTest::keyClick(&program_->RTB, key);
        QApplication::clipboard()->setText(QStringLiteral("pasted"));
        QTest::keyClick(&program_->RTB, Qt::Key_V, Qt::ControlModifier);
        program_->RTB.selectAll();
        QTest::keyClick(&program_->RTB, Qt::Key_X, Qt::ControlModifier);
        QTest::keyClick(&program_->RTB, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(program_->ReportText(), report);
        QVERIFY(program_->RTB.isReadOnly());
    }

    void ItCanBeSelectedByKeyboard() {
        program_->RTB.setFocus();
        QTest::keyClick(&program_->RTB, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(program_->RTB.textCursor().selectedText().size(),
                 program_->RTB.toPlainText().size());
    }

    void ItCanBeSelectedByMouse() {
        QWidget *pane = program_->RTB.viewport();
        const QPoint start(6, 8);
        const QPoint end(120, 8);
        QTest::mousePress(pane, Qt::LeftButton, {}, start);
        QMouseEvent move(QEvent::MouseMove, QPointF(end), pane->mapToGlobal(QPointF(end)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(pane, &move);
        QTest::mouseRelease(pane, Qt::LeftButton, {}, end);
        const QString marked = program_->RTB.textCursor().selectedText();
        QVERIFY2(marked.size() > 3, qPrintable(marked));
        QVERIFY(QStringLiteral("Your Personal Month is: 8").contains(marked));
    }

    void ItScrolls() {
        program_->ClickNode(QStringLiteral("Comprehensive Reading"));
        QScrollBar *bar = program_->RTB.verticalScrollBar();
        QVERIFY(bar->isVisible());
        QWheelEvent wheel(QPointF(50, 50), program_->RTB.viewport()->mapToGlobal(QPointF(50, 50)),
                          {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(program_->RTB.viewport(), &wheel);
        QVERIFY(bar->value() > 0);
        program_->RTB.setFocus();
        QTest::keyClick(&program_->RTB, Qt::Key_Home, Qt::ControlModifier);
        const int top = bar->value();
        QVERIFY(top < 10); // the first line, with or without the margin above it
        QTest::keyClick(&program_->RTB, Qt::Key_PageDown);
        QVERIFY(bar->value() > top + program_->RTB.viewport()->height() / 2);
        QCOMPARE(program_->RTB.horizontalScrollBar()->maximum(), 0); // the lines are wrapped
    }

    // --- The clipboard

    void AReportThatIsWrittenEmptiesTheClipboard_data() {
        QTest::addColumn<QString>("caption");
        QTest::newRow("a topic") << QStringLiteral("Essence");
        QTest::newRow("the topic that is shown") << QStringLiteral("Personal Month");
        QTest::newRow("the whole report") << QStringLiteral("Comprehensive Reading");
    }
    void AReportThatIsWrittenEmptiesTheClipboard() {
        QFETCH(QString, caption);
        FillClipboard();
        program_->ClickNode(caption);
        QVERIFY(ClipboardIsEmpty());
    }

    void ProceedEmptiesTheClipboard() {
        program_->ClickNode(QStringLiteral("Enter The Information"));
        FillClipboard();
        program_->Proceed();
        QVERIFY(ClipboardIsEmpty());
    }

    void NoReportLeavesTheClipboardAlone() {
        FillClipboard();
        program_->ClickNode(QStringLiteral("Help"));
        program_->ClickNode(QStringLiteral("Numerology"));
        program_->ClickNode(QStringLiteral("User Information"));
        program_->ClickNode(QStringLiteral("Reset"));
        QCOMPARE(QApplication::clipboard()->text(), QString::fromLatin1(copied));
    }

    void EachMouseEventOverThePaneEmptiesTheClipboard() {
        FillClipboard();
        Mouse(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
        QVERIFY(ClipboardIsEmpty());
        FillClipboard();
        Mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        QVERIFY(ClipboardIsEmpty());
        FillClipboard();
        Mouse(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
        QVERIFY(ClipboardIsEmpty());
        FillClipboard();
        Mouse(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
        QVERIFY(ClipboardIsEmpty());
    }

    void AClickOnThePaneEmptiesTheClipboardByItself() {
        // The click follows the release at once, so the clipboard is filled in between.
        int releases = 0;
        connect(&program_->RTB, &RichTextBox::mouseUp, this, [&releases] {
            FillClipboard();
            ++releases;
        });
        Mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        Mouse(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
        QCOMPARE(releases, 1);
        QVERIFY(ClipboardIsEmpty());
    }

    void AReleaseOutsideThePaneIsNoClickAndEmptiesTheClipboardAllTheSame() {
        QWidget *pane = program_->RTB.viewport();
        const QPointF outside(-30, 10);
        int clicks = 0;
        connect(&program_->RTB, &RichTextBox::clicked, this, [&clicks] { ++clicks; });
        Mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        FillClipboard();
        QMouseEvent release(QEvent::MouseButtonRelease, outside, pane->mapToGlobal(outside),
                            Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(pane, &release);
        QCOMPARE(clicks, 0);
        QVERIFY(ClipboardIsEmpty());
    }

    void TheRightButtonEmptiesTheClipboardToo() {
        FillClipboard();
        Mouse(QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton);
        QVERIFY(ClipboardIsEmpty());
        FillClipboard();
        Mouse(QEvent::MouseButtonRelease, Qt::RightButton, Qt::NoButton);
        QVERIFY(ClipboardIsEmpty());
    }

    void WhateverAnotherProgramPutThereIsWiped() {
        auto *content = new QMimeData;
        content->setData(QStringLiteral("application/x-something"), "bytes");
        content->setImageData(QImage(2, 2, QImage::Format_RGB32));
        QApplication::clipboard()->setMimeData(content);
        QVERIFY(!ClipboardIsEmpty());
        Mouse(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
        QVERIFY(ClipboardIsEmpty());
    }

    void TextCopiedByKeyboardStaysUntilTheMouseMovesOverThePane() {
        program_->RTB.setFocus();
        QTest::keyClick(&program_->RTB, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&program_->RTB, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QApplication::clipboard()->text().startsWith(
            QLatin1StringView("Your Personal Month is: 8")));
        QTest::keyClick(&program_->RTB, Qt::Key_Home, Qt::ControlModifier);
        QVERIFY(!ClipboardIsEmpty());
        Mouse(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
        QVERIFY(ClipboardIsEmpty());
    }

    void MouseMovesElsewhereLeaveTheClipboardAlone() {
        program_->ClickNode(QStringLiteral("User Information"));
        FillClipboard();
        for (QWidget *other : std::initializer_list<QWidget *>{
                 program_->input.picProceed, program_->TV.viewport(), program_->input.txtFirstName,
                 program_->form.picMain}) {
            QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), other->mapToGlobal(QPointF(3, 3)),
                             Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(other, &move);
        }
        QCOMPARE(QApplication::clipboard()->text(), QString::fromLatin1(copied));
    }

    // --- Printing where there is no printer

    void PrintWithoutAPrinterDoesNothing() {
        QVERIFY(QPrinterInfo::defaultPrinter().isNull());
        const std::u16string report = program_->ReportText();
        program_->Click(program_->form.Picture2->picPrint);
        program_->form.cmdPrint->click();
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(program_->ReportText(), report);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
        QVERIFY(program_->browser.Taken().isEmpty());
    }

    void PrintDropsTheMarks() {
        QVERIFY(QPrinterInfo::defaultPrinter().isNull());
        QTextCursor marks = program_->RTB.textCursor();
        marks.setPosition(20);
        marks.setPosition(5, QTextCursor::KeepAnchor);
        program_->RTB.setTextCursor(marks);
        QVERIFY(program_->RTB.textCursor().hasSelection());
        program_->Click(program_->form.Picture2->picPrint);
        QVERIFY(!program_->RTB.textCursor().hasSelection());
        QCOMPARE(program_->RTB.textCursor().position(), 5); // only their length goes
    }
};

ORRAVANE_TEST_PROGRAM(ReportPaneTest)

#include "report_pane_test.moc"
