#include "document/document_window.h"

#include "core/clock.h"
#include "document/busy_bar.h"
#include "document/check_box.h"
#include "document/command_button.h"
#include "shell/app.h"
#include "shell/name_box.h"
#include "tests/shell/browser_log.h"
#include "tests/shell/dialogs.h"
#include "tests/shell/file_dialog.h"
#include "tests/shell/temporary_home.h"
#include "tests/support/stand_in_engine.h"
#include "tools/formats.h"
#include "tools/people.h"

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QSet>

using namespace Qt::StringLiterals;

// The window of the documents, with somebody in front of its dialogs and a desktop that only
// takes notes of what is opened. PDFs are made by stand-ins for the engine, which has a test of
// its own.

class DocumentWindowTest : public QObject {
    Q_OBJECT

    const modReadings::FixedClock clock_{std::chrono::year(2026) / 11 / 16};
    const QByteArray path_ = qgetenv("PATH");
    BrowserLog opened_;
    Dialogs dialogs_;
    std::optional<DocumentWindow> window_;
    std::optional<QTemporaryDir> folder_;

    /// Makes the window the active one again: the offscreen display does not when a dialog goes.
    void Activate() {
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&*window_));
    }

    QString PathOf(const QString &name) const { return folder_->filePath(name); }

    QStringList Files() const {
        return QDir(folder_->path())
            .entryList({u"*.pdf"_s, u"*.html"_s, u"*.md"_s, u"*.rtf"_s}, QDir::Files);
    }

    QByteArray Content(const QString &name) const {
        QFile file(PathOf(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }

    void Type(const QString &first, const QString &middle, const QString &last) {
        window_->firstName->setText(first);
        window_->middleName->setText(middle);
        window_->lastName->setText(last);
    }

    /// Clara Jane Winter, born on 29 March 1985.
    void TypeSomebody() {
        Type(u"Clara"_s, u"Jane"_s, u"Winter"_s);
        window_->birthMonth->setCurrentText(u"March"_s);
        window_->birthDay->setCurrentText(u"29"_s);
        window_->birthYear->setCurrentText(u"1985"_s);
    }

    void Choose(QStringView format) {
        for (int row = 0; row < window_->format->count(); ++row)
            if (window_->format->itemText(row).startsWith(format))
                window_->format->setCurrentIndex(row);
        QVERIFY(window_->format->currentText().startsWith(format));
    }

    /// Makes the document under this name, by the Enter key.
    void MakeAs(const QString &name) {
        dialogs_.Plan([this, name](QDialog &dialog) { SaveAs(dialog, PathOf(name)); });
        QTest::keyClick(window_->lastName, Qt::Key_Return);
    }

    /// The message that comes up on Make, without a file having been asked for.
    QString MessageOnMake() {
        return dialogs_.MessageOf([this] { QTest::mouseClick(window_->make, Qt::LeftButton); });
    }

    /// From now on the engine is a program whose interpreter is this script of the shell.
    void StandInForEngine(const QByteArray &script) {
        MakeStandInEngine(folder_->path(), script, path_);
        qputenv("PATH", folder_->path().toUtf8());
    }

private slots:
    void init() {
        folder_.emplace(TemporaryHome::PathOf(u"documents"_s));
        window_.emplace();
        window_->show();
        Activate();
    }

    void cleanup() {
        window_.reset();
        qputenv("PATH", path_);
        opened_.Taken();
        const QString trouble = dialogs_.Trouble();
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));
    }

    void EachMissingNameHasItsMessage() {
        QCOMPARE(MessageOnMake(),
                 u"Warning, Orravane Document: Please enter the first name. [OK]"_s);
        QCOMPARE(window_->focusWidget(), window_->firstName);
        Type(u"Clara"_s, {}, {});
        QCOMPARE(MessageOnMake(),
                 u"Warning, Orravane Document: Please enter the last name. [OK]"_s);
        QCOMPARE(window_->focusWidget(), window_->lastName);
    }

    void ANameThatCannotBeReadIsRefusedForTheReasonOfTheTool() {
        Type(u"Clara"_s, u"5"_s, u"Winter"_s);
        QCOMPARE(MessageOnMake(),
                 u"Warning, Orravane Document: The middle name has no letter that the "
                 "Essence can count; give a name with at least one of the letters "
                 "A to Z. [OK]"_s);
        QCOMPARE(window_->focusWidget(), window_->middleName);
        window_->firstName->setText(QString(5000, u'z'));
        window_->middleName->clear();
        QVERIFY(MessageOnMake().contains(u"The name is too long"));
        QCOMPARE(window_->focusWidget(), window_->firstName);
    }

    void AMissingEngineIsNamedBeforeAFileIsAskedFor() {
        TypeSomebody();
        qputenv("PATH", folder_->path().toUtf8());
        QCOMPARE(MessageOnMake(), u"Warning, Orravane Document: PDF needs WeasyPrint, which is not "
                                  "installed; install the package weasyprint. [OK]"_s);
        QCOMPARE(window_->focusWidget(), window_->format);
        QVERIFY(window_->format->currentText().startsWith(u"PDF"));
        QVERIFY(DocumentWindow().format->currentText().startsWith(u"HTML")); // from the beginning
    }

    void TheDialogProposesANameForThePersonAndTheFormat() {
        for (const auto &[format, name] : {std::pair(u"HTML"_s, u"Zo\u00EB a_b van der Wal.html"_s),
                                           {u"Markdown"_s, u"Zo\u00EB a_b van der Wal.md"_s},
                                           {u"RTF"_s, u"Zo\u00EB a_b van der Wal.rtf"_s}}) {
            Type(u"Zo\u00EB"_s, u"a/b"_s, u" van der  Wal"_s);
            Choose(format);
            QString proposed;
            dialogs_.Plan([&](QDialog &dialog) {
                proposed = NameBoxOf(dialog)->text();
                Cancel(dialog);
            });
            QTest::mouseClick(window_->make, Qt::LeftButton);
            QCOMPARE(proposed, name);
        }
        QCOMPARE(opened_.Taken(), QStringList());
    }

    // The name in the file has its own ending in every case: the desktop goes by it.
    void WritesTheDocumentOfTheToolAndOpensIt() {
        TypeSomebody();
        window_->day->setCurrentText(u"1"_s);
        for (const auto &[format, kind, name] :
             {std::tuple(u"HTML"_s, Format::Html, u"C. Winter.html"_s),
              {u"Markdown"_s, Format::Markdown, u"C. Winter.md"_s}}) {
            Choose(format);
            MakeAs(u"C. Winter"_s);
            const modReadings::FixedClock thatDay(std::chrono::year(2026) / 11 / 1);
            const PersonInput input{u"Clara"_s, u"Jane"_s, u"Winter"_s, u"3"_s, u"29"_s, u"1985"_s};
            QCOMPARE(Content(name).toStdString(),
                     DocumentAs(kind, CheckPerson(input), GivenNameOf(input)));
            QCOMPARE(opened_.Taken(), QStringList{QUrl::fromLocalFile(PathOf(name)).toString()});
            QCOMPARE(window_->status->text(), u"Made "_s + name);
        }
        Choose(u"RTF");
        Activate();
        QTest::keyClick(&*window_, Qt::Key_O, Qt::AltModifier);
        QTRY_VERIFY(!window_->opens->isChecked());
        MakeAs(u"readings.rtf"_s);
        QVERIFY(Content(u"readings.rtf"_s).startsWith("{\\rtf1"));
        QCOMPARE(opened_.Taken(), QStringList());
    }

    void APdfIsMadeWhileTheWindowAnswers() {
        StandInForEngine("read size; head -c $size >/dev/null; until [ -e " +
                         PathOf(u"go"_s).toUtf8() +
                         " ]; do sleep 0.02; done; printf 'pdf 4\\n%%PDF'");
        TypeSomebody();
        Choose(u"PDF");
        window_->make->setFocus();
        dialogs_.Plan([this](QDialog &dialog) { SaveAs(dialog, PathOf(u"a.pdf"_s)); });
        QTest::keyClick(window_->make, Qt::Key_Space);
        QVERIFY(window_->IsBusy());
        QVERIFY(window_->cancel->isVisible() && window_->busy->isVisible());
        QVERIFY(!window_->make->isEnabled());
        QCOMPARE(window_->focusWidget(), window_->cancel);
        QTest::keyClick(window_->firstName, Qt::Key_Return); // no second one meanwhile
        QTest::keyClicks(window_->firstName, u"x"_s);
        QCOMPARE(window_->firstName->text(), u"Clarax"_s);
        QCOMPARE(Files(), QStringList());

        QVERIFY(QFile(PathOf(u"go"_s)).open(QIODevice::WriteOnly));
        QTRY_VERIFY(!window_->IsBusy());
        QCOMPARE(Content(u"a.pdf"_s), "%PDF");
        QCOMPARE(opened_.Taken(), QStringList{QUrl::fromLocalFile(PathOf(u"a.pdf"_s)).toString()});
        QVERIFY(!window_->cancel->isVisible() && !window_->busy->isVisible());
        QVERIFY(window_->make->isEnabled());
    }

    void EscapeAndCancelGiveThePdfUp() {
        StandInForEngine("exec sleep 100");
        TypeSomebody();
        for (const bool byKey : {true, false}) {
            MakeAs(u"a.pdf"_s);
            QVERIFY(window_->IsBusy());
            if (byKey)
                QTest::keyClick(window_->lastName, Qt::Key_Escape);
            else
                QTest::mouseClick(window_->cancel, Qt::LeftButton);
            QVERIFY(!window_->IsBusy());
            QVERIFY(!window_->cancel->isVisible());
            QCOMPARE(window_->status->text(), u"Cancelled; nothing was written"_s);
        }
        QCOMPARE(Files(), QStringList());
        QCOMPARE(opened_.Taken(), QStringList());
    }

    void WhatFailsGetsAMessage() {
        TypeSomebody();
        StandInForEngine("echo 'MemoryError: too large' >&2; exit 1");
        QString message;
        MakeAs(u"a.pdf"_s);
        dialogs_.PlanToPress(QMessageBox::Ok, &message);
        QTRY_COMPARE(message, u"Warning, Orravane Document: WeasyPrint cannot make the PDF: "
                              "MemoryError: too large. [OK]"_s);

        // The folder goes while the PDF is made.
        QDir(folder_->path()).mkdir(u"gone"_s);
        StandInForEngine("rmdir " + PathOf(u"gone"_s).toUtf8() +
                         "; printf 'pdf 4\\n%%PDF'; cat >/dev/null");
        message.clear();
        MakeAs(u"gone/a.pdf"_s);
        dialogs_.PlanToPress(QMessageBox::Ok, &message);
        QTRY_VERIFY(message.contains(u"gone/a.pdf could not be written: "));
        QCOMPARE(opened_.Taken(), QStringList());
    }

    void ClosingEndsTheEngine() {
        StandInForEngine("echo $$ >" + PathOf(u"pid"_s).toUtf8() + "; exec sleep 100");
        TypeSomebody();
        MakeAs(u"a.pdf"_s);
        QTRY_VERIFY(Content(u"pid"_s).endsWith('\n'));
        Activate();
        QTest::keyClick(&*window_, Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(!window_->isVisible());
        QVERIFY(!QFile::exists(u"/proc/"_s + QString::fromUtf8(Content(u"pid"_s).trimmed())));
    }

    void TheReadingIsForTodayAtFirstAndOnlyForDaysThatThereAre() {
        QCOMPARE(window_->month->currentText(), u"November"_s);
        QCOMPARE(window_->day->currentText(), u"16"_s);
        QCOMPARE(window_->year->currentText(), u"2026"_s);
        QCOMPARE(window_->day->count(), 30);
        window_->month->setCurrentText(u"January"_s);
        window_->day->setCurrentText(u"31"_s);
        window_->month->setCurrentText(u"February"_s);
        QCOMPARE(window_->day->currentText(), u"28"_s);
        window_->year->setCurrentText(u"2028"_s);
        QCOMPARE(window_->day->count(), 29);
        QCOMPARE(window_->birthDay->count(), 31);
    }

    void EveryControlHasANameAndItsOwnLetterAndPlaceInTheOrder() {
        const QList<QWidget *> order{window_->firstName,  window_->middleName, window_->lastName,
                                     window_->birthMonth, window_->birthDay,   window_->birthYear,
                                     window_->month,      window_->day,        window_->year,
                                     window_->format,     window_->opens,      window_->make};
        QCOMPARE(window_->focusWidget(), order.front());
        for (QWidget *control : order) {
            QCOMPARE(window_->focusWidget(), control);
            QTest::keyClick(control, Qt::Key_Tab);
        }
        QCOMPARE(window_->focusWidget(), order.front());

        QSet<QString> names;
        for (QWidget *control : order) {
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(control);
            names << accessible->text(QAccessible::Name);
        }
        QCOMPARE(names.size(), order.size());
        QVERIFY(!names.contains(QString()));
        QCOMPARE(QAccessible::queryAccessibleInterface(window_->busy)->text(QAccessible::Name),
                 u"The PDF is being made"_s);

        for (const auto &[letter, control] :
             {std::pair(Qt::Key_F, static_cast<QWidget *>(window_->firstName)),
              {Qt::Key_I, window_->middleName},
              {Qt::Key_L, window_->lastName},
              {Qt::Key_B, window_->birthMonth},
              {Qt::Key_R, window_->month},
              {Qt::Key_T, window_->format}}) {
            QTest::keyClick(&*window_, letter, Qt::AltModifier);
            QCOMPARE(window_->focusWidget(), control);
        }
    }

    // Above and below the page and at both sides of it: nothing is left in the desktop's colour.
    void TheSkyIsAllAroundThePage() {
        const QImage image = window_->grab().toImage();
        QSet<QRgb> colours;
        for (int x = 0; x < image.width(); ++x)
            for (const int y : {20, image.height() - 10})
                colours << image.pixel(x, y);
        QVERIFY(colours.size() > 50);
        for (int y = 0; y < image.height(); ++y)
            for (const int x : {2, image.width() - 3}) // the sky is dark, its lines are thin
                QVERIFY2(qGray(image.pixel(x, y)) < 140, qPrintable(u"%1, %2"_s.arg(x).arg(y)));
    }

    void NothingIsCutOff() {
        for (const QLabel *label : window_->findChildren<QLabel *>())
            QVERIFY2(label == window_->status || label->width() >= label->sizeHint().width(),
                     qPrintable(label->text()));
        for (const QWidget *control : window_->findChildren<QWidget *>())
            if (control->isVisible() && control->parentWidget()->isVisible())
                QVERIFY2(control->parentWidget()->rect().contains(control->geometry()),
                         qPrintable(control->accessibleName()));
        QList<QWidget *> rows{window_->firstName, window_->middleName, window_->lastName};
        for (int row = 1; row < rows.size(); ++row)
            QVERIFY(rows[row]->y() >= rows[row - 1]->geometry().bottom());
    }
};

ORRAVANE_TEST_PROGRAM(DocumentWindowTest)
#include "document_window_test.moc"
