#include "report/print_job.h"
#include "tests/shell/window_test.h"

#include <QClipboard>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QWindow>

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

/// What a format says of text beyond the two things that a reading sets.
bool IsPlain(const QTextCharFormat &format) {
    return !format.hasProperty(QTextFormat::FontFamilies) &&
           !format.hasProperty(QTextFormat::FontPointSize) &&
           !format.hasProperty(QTextFormat::FontPixelSize) && !format.fontItalic() &&
           !format.fontUnderline();
}

} // namespace

class ReportPaneTest : public WindowTest {
    Q_OBJECT

    static void FillClipboard() {
        QApplication::clipboard()->setText(u"copied by somebody"_s);
        QVERIFY(!ClipboardIsEmpty());
    }

    static bool ClipboardIsEmpty() {
        const QMimeData *content = QApplication::clipboard()->mimeData();
        return content == nullptr || content->formats().isEmpty();
    }

    /// One mouse event over the pane, in its middle where no point is given, as the window
    /// system delivers it.
    void Mouse(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held,
               QPoint point = {}) {
        QWidget *pane = RTB.viewport();
        const QPointF place(point.isNull() ? pane->rect().center() : point);
        QMouseEvent event(type, place, pane->mapToGlobal(place), button, held, Qt::NoModifier);
        QApplication::sendEvent(pane, &event);
    }

    /// Compares the document with the report that is shown: each paragraph a text and a flag
    /// for each of its characters, "b" for bold and "n" for not. All of it has the one ink.
    void CompareDocumentWithReport() {
        QStringList expected{QString()};
        QStringList expectedFlags{QString()};
        for (const modReadings::Run &run : RTB.ShownReport()) {
            for (const char16_t unit : run.text) {
                if (unit == u'\r')
                    continue;
                if (unit == u'\n') {
                    expected << QString();
                    expectedFlags << QString();
                } else {
                    expected.back() += QChar(unit);
                    expectedFlags.back() += run.bold ? u'b' : u'n';
                }
            }
        }
        QStringList texts;
        QStringList flags;
        const QColor magenta(128, 0, 128);
        for (QTextBlock block = RTB.document()->begin(); block.isValid(); block = block.next()) {
            texts << block.text();
            flags << QString();
            QCOMPARE(block.charFormat().foreground().color(), magenta); // of an empty line too
            QVERIFY(!block.blockFormat().hasProperty(QTextFormat::BlockAlignment));
            QVERIFY(!block.blockFormat().hasProperty(QTextFormat::BlockTopMargin));
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                QCOMPARE(format.foreground().color(), magenta);
                QVERIFY(IsPlain(format));
                flags.back() += QString(part.fragment().length(),
                                        format.fontWeight() == QFont::Bold ? u'b' : u'n');
            }
        }
        QCOMPARE(texts, expected);
        QCOMPARE(flags, expectedFlags);
        QVERIFY(RTB.textCursor().atEnd());
        QVERIFY(!RTB.textCursor().hasSelection());
        QCOMPARE(RTB.verticalScrollBar()->value(), 0); // the view is where reading starts
        QVERIFY(RTB.isReadOnly());
    }

    ulong time_ = 10'000; // of the last mouse event

private slots:
    void init() {
        WindowTest::init();
        ProceedWithSomebody();
    }

    // --- How a report stands in it

    void TheDocumentIsTheReportForEveryTopic() {
        const auto show = [this](const QString &caption) {
            FillClipboard();
            RTB.selectAll();
            RTB.verticalScrollBar()->setValue(RTB.verticalScrollBar()->maximum());
            ClickNode(caption);
            CompareDocumentWithReport();
            QVERIFY(ClipboardIsEmpty()); // also where the same report was shown before
        };
        CompareDocumentWithReport(); // the one that Proceed has shown
        QStringList captions;
        for (const QStringList &row : TableRows(u"topics.csv"_s))
            captions << row[0];
        for (const QString &caption : captions + QStringList{u"Comprehensive Reading"_s}) {
            show(caption);
            const modReadings::Report once = RTB.ShownReport();
            QVERIFY(once.size() >= 3 && once[0].bold && !once.back().bold);
            show(caption);
            QVERIFY(RTB.ShownReport() == once);
        }

        // Before any Proceed the page of the Birthday is nothing but two line breaks.
        ForgetAllPeople();
        for (int times = 0; times < 2; ++times) {
            show(u"Birthday Number"_s);
            QCOMPARE(RTB.document()->blockCount(), 3);
        }
    }

    void AReportIsPaintedOnceAndWhole() {
        for (const QString &caption : {u"Essence"_s, u"Comprehensive Reading"_s}) {
            ClickNode(u"Pinnacle Phases"_s);
            RTB.verticalScrollBar()->setValue(100);
            TV.scrollToItem(Node(caption));
            QApplication::processEvents();

            const PaintWitness witness(RTB);
            ClickNode(caption);
            QApplication::processEvents();
            QCOMPARE(witness.texts, QStringList{RTB.toPlainText()});
            QCOMPARE(witness.scrolled, QList<int>{0});
        }
    }

    // --- What the user can do with it

    void ItCannotBeEdited() {
        const std::u16string report = ReportText();
        QTest::keyClicks(&RTB, u"text"_s);
        for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Return})
            QTest::keyClick(&RTB, key);
        QApplication::clipboard()->setText(u"pasted"_s);
        QTest::keyClick(&RTB, Qt::Key_V, Qt::ControlModifier);
        RTB.selectAll();
        QTest::keyClick(&RTB, Qt::Key_X, Qt::ControlModifier);
        QTest::keyClick(&RTB, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(ReportText(), report);
    }

    void ItCanBeSelectedByMouseAndKeyboard() {
        QTest::mousePress(RTB.viewport(), Qt::LeftButton, {}, QPoint(6, 8));
        Mouse(QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, QPoint(120, 8));
        QTest::mouseRelease(RTB.viewport(), Qt::LeftButton, {}, QPoint(120, 8));
        const QString marked = RTB.textCursor().selectedText();
        QVERIFY2(marked.size() > 3, qPrintable(marked));
        QVERIFY(u"Your Personal Month is: 8"_s.contains(marked));

        QTest::keyClick(&RTB, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(RTB.textCursor().selectedText().size(), RTB.toPlainText().size());
    }

    void ItScrolls() {
        ClickNode(u"Comprehensive Reading"_s);
        QScrollBar *bar = RTB.verticalScrollBar();
        QVERIFY(bar->isVisible());
        QCOMPARE(RTB.horizontalScrollBar()->maximum(), 0); // the lines are wrapped
        QWheelEvent wheel(QPointF(50, 50), RTB.viewport()->mapToGlobal(QPointF(50, 50)), {},
                          QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(RTB.viewport(), &wheel);
        QVERIFY(bar->value() > 0);

        // The keys move the view; the caret stays at the end.
        const auto valueAfter = [&](Qt::Key key) {
            QTest::keyClick(&RTB, key);
            return bar->value();
        };
        QCOMPARE(valueAfter(Qt::Key_Home), 0);
        const int line = valueAfter(Qt::Key_Down);
        QVERIFY(line > 0);
        QCOMPARE(valueAfter(Qt::Key_Up), 0);
        const int page = valueAfter(Qt::Key_PageDown);
        QVERIFY(page > RTB.viewport()->height() / 2);
        QCOMPARE(valueAfter(Qt::Key_PageUp), 0);
        QCOMPARE(valueAfter(Qt::Key_Space), page);
        QCOMPARE(valueAfter(Qt::Key_End), bar->maximum());
        QVERIFY(RTB.textCursor().atEnd());
    }

    // --- The clipboard

    void AReportThatIsWrittenEmptiesTheClipboard() {
        for (const QString &caption :
             {u"Essence"_s, u"Essence"_s, u"Comprehensive Reading"_s}) { // the shown one too
            FillClipboard();
            ClickNode(caption);
            QVERIFY(ClipboardIsEmpty());
        }
        ClickNode(u"Enter The Information"_s);
        FillClipboard();
        Proceed();
        QVERIFY(ClipboardIsEmpty());
    }

    void NeitherAnotherClickNorAMoveElsewhereTouchesTheClipboard() {
        FillClipboard();
        for (const QString &caption :
             {u"Help"_s, u"Numerology"_s, u"User Information"_s, u"Reset"_s})
            ClickNode(caption);
        for (QWidget *other : std::initializer_list<QWidget *>{input.picProceed, TV.viewport(),
                                                               input.txtFirstName, form.picMain})
            MoveTo(other, {3, 3});
        QCOMPARE(QApplication::clipboard()->text(), u"copied by somebody"_s);
    }

    void EachMouseEventOverThePaneEmptiesTheClipboard() {
        const auto empties = [this](QEvent::Type type, Qt::MouseButton button,
                                    Qt::MouseButtons held, QPoint point = {}) {
            FillClipboard();
            Mouse(type, button, held, point);
            return ClipboardIsEmpty();
        };
        QVERIFY(empties(QEvent::MouseMove, Qt::NoButton, Qt::NoButton));
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            QVERIFY(empties(QEvent::MouseButtonPress, button, button));
            QVERIFY(empties(QEvent::MouseButtonDblClick, button, button)); // the second press
            QVERIFY(empties(QEvent::MouseMove, Qt::NoButton, button));
            // Beside the pane, where it is no click.
            QVERIFY(empties(QEvent::MouseButtonRelease, button, Qt::NoButton, QPoint(-30, 10)));
        }
    }

    void AClickOnThePaneEmptiesTheClipboardByItself() {
        // The click follows the release at once, so the clipboard is filled in between.
        int clicks = 0;
        const QObject listener;
        connect(&RTB, &RichTextBox::mouseUp, &listener, [] { FillClipboard(); });
        connect(&RTB, &RichTextBox::clicked, &listener, [&] { ++clicks; });
        Mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        Mouse(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
        QCOMPARE(clicks, 1);
        QVERIFY(ClipboardIsEmpty());
        Mouse(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
        Mouse(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton, QPoint(-30, 10));
        QCOMPARE(clicks, 1);
    }

    void ADragWhoseEndIsLostLeavesTheClipboardAlone() {
        // While text is dragged beyond the edge, the pane scrolls by a timer, and each time counts
        // as a move of the mouse. A dialog that comes up by the keyboard, or a menu, gets the
        // release in the pane's place; then the drag is over all the same.
        ClickNode(u"Comprehensive Reading"_s);
        QWindow *window = form.windowHandle();
        const auto mouse = [&](QEvent::Type type, QPoint point, Qt::MouseButtons held) {
            const QPoint place = RTB.viewport()->mapTo(&form, point);
            const Qt::MouseButton button =
                type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
            QCursor::setPos(form.mapToGlobal(place));
            qt_handleMouseEvent(window, place, window->mapToGlobal(place), held, button, type, {},
                                static_cast<int>(++time_));
            QApplication::processEvents();
        };
        const QPoint inside(60, 60);
        const QPoint below(60, RTB.viewport()->height() + 40);
        const auto drag = [&] {
            RTB.verticalScrollBar()->setValue(0);
            mouse(QEvent::MouseButtonPress, inside, Qt::LeftButton);
            mouse(QEvent::MouseMove, below, Qt::LeftButton);
            FillClipboard();
            QTRY_VERIFY(RTB.verticalScrollBar()->value() > 0); // it scrolls by itself
            QVERIFY(ClipboardIsEmpty());
        };
        const auto isLeftAlone = [&] {
            FillClipboard();
            QTest::qWait(150); // the timer takes 100 ms at first, then less
            return !ClipboardIsEmpty();
        };

        // As usual: the release ends it.
        drag();
        mouse(QEvent::MouseButtonRelease, below, Qt::NoButton);
        QVERIFY(isLeftAlone());

        // A dialog comes up and gets the release, or the button is still held when it goes.
        for (const bool released : {true, false}) {
            drag();
            std::optional<bool> quiet;
            dialogs.Plan([&](QDialog &dialog) {
                quiet = isLeftAlone();
                if (released)
                    mouse(QEvent::MouseButtonRelease, below, Qt::NoButton);
                dialog.reject();
            });
            QTest::keyClick(&form, Qt::Key_S, Qt::AltModifier);
            QTRY_VERIFY(quiet.has_value() && !form.cmdSave->isDown());
            QVERIFY(*quiet);
            QVERIFY(isLeftAlone());
            Activate();
            if (!released)
                mouse(QEvent::MouseButtonRelease, below, Qt::NoButton);
            QVERIFY(isLeftAlone());
        }

        // A menu gets it.
        drag();
        QTest::keyClick(&form, Qt::Key_H, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        mouse(QEvent::MouseButtonRelease, below, Qt::NoButton);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
        QVERIFY(isLeftAlone());

        // And marking by the mouse works as before.
        drag();
        mouse(QEvent::MouseButtonRelease, below, Qt::NoButton);
        QVERIFY(RTB.textCursor().hasSelection());
    }

    void WhateverAnotherProgramPutThereIsWiped() {
        auto *content = new QMimeData;
        content->setData(u"application/x-something"_s, "bytes");
        content->setImageData(QImage(2, 2, QImage::Format_RGB32));
        QApplication::clipboard()->setMimeData(content);
        QVERIFY(!ClipboardIsEmpty());
        Mouse(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
        QVERIFY(ClipboardIsEmpty());
    }

    void TextCopiedByKeyboardStaysUntilTheMouseMovesOverThePane() {
        QTest::keyClick(&RTB, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&RTB, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), RTB.toPlainText());
        QTest::keyClick(&RTB, Qt::Key_Home, Qt::ControlModifier);
        QVERIFY(!ClipboardIsEmpty());
        Mouse(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
        QVERIFY(ClipboardIsEmpty());
    }

    // --- Printing where there is no printer

    void PrintWithoutAPrinterDoesNothing() {
        QVERIFY(PrintJob::ForDefaultPrinter(u"nothing"_s) == nullptr);
        const std::u16string report = ReportText();
        Click(form.Picture2->picPrint);
        form.cmdPrint->click();
        QCOMPARE(ReportText(), report);
        QCOMPARE(Page(), u"Picture2"_s);
        QCOMPARE(browser.Taken(), QStringList());
    }

    void PrintDropsTheMarks() {
        QTextCursor marks = RTB.textCursor();
        marks.setPosition(20);
        marks.setPosition(5, QTextCursor::KeepAnchor);
        RTB.setTextCursor(marks);
        Click(form.Picture2->picPrint);
        QVERIFY(!RTB.textCursor().hasSelection());
        QCOMPARE(RTB.textCursor().position(), 5); // only their length goes
    }
};

ORRAVANE_TEST_PROGRAM(ReportPaneTest)

#include "report_pane_test.moc"
