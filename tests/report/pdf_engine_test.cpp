// PDF by the real engine, and by stand-ins that fail in the ways in which a process can.

#include "report/pdf_engine.h"

#include "tests/support/becomes.h"
#include "tests/support/stand_in_engine.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

class PdfEngineTest : public ::testing::Test {
protected:
    void TearDown() override { qputenv("PATH", path_); }

    QString Make(const QString &name, const QByteArray &content) const {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << file.fileName().toStdString();
        file.write(content);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return file.fileName();
    }

    /// From now on the engine is a program whose interpreter is this script of the shell.
    void StandIn(const QByteArray &shell) const {
        MakeStandInEngine(folder_.path(), shell, path_);
        qputenv("PATH", folder_.path().toUtf8());
    }

    /// The text of a PDF.
    QString TextOf(const QByteArray &pdf) const {
        QProcess reader;
        reader.start(u"pdftotext"_s, {Make(u"made.pdf"_s, pdf), u"-"_s});
        EXPECT_TRUE(reader.waitForFinished());
        return QString::fromUtf8(reader.readAllStandardOutput()).simplified();
    }

    const QTemporaryDir folder_;
    const QByteArray path_ = qgetenv("PATH");
};

TEST_F(PdfEngineTest, MakesOneDocumentAfterTheOtherAndTheSameBytesOfTheSameText) {
    ASSERT_EQ(PdfEngine::WhatIsMissing(), QString());
    PdfEngine engine;
    const PdfAnswer first = engine.Make("<title>One</title><p>Zo\xC3\xAB</p>", Paper::A4);
    EXPECT_EQ(first.trouble, QString());
    EXPECT_EQ(TextOf(first.pdf), u"Zoë"_s);
    EXPECT_EQ(TextOf(engine.Make("<p>the second", Paper::A4).pdf), u"the second"_s);
    EXPECT_EQ(PdfEngine().Make("<title>One</title><p>Zo\xC3\xAB</p>", Paper::A4).pdf, first.pdf);
}

TEST_F(PdfEngineTest, TakesThePagesOfThePaper) {
    PdfEngine engine;
    for (const auto &[paper, size] :
         {std::pair(Paper::A4, "595.276 x 841.89 pts"), {Paper::Letter, "612 x 792 pts"}}) {
        QProcess reader;
        reader.start(u"pdfinfo"_s, {Make(u"made.pdf"_s, engine.Make("<p>text", paper).pdf)});
        EXPECT_TRUE(reader.waitForFinished());
        EXPECT_TRUE(reader.readAllStandardOutput().contains(size)) << size;
    }
}

TEST_F(PdfEngineTest, LoadsNothing) {
    const QByteArray address = "file://" + Make(u"x.css"_s, "p::after{content:' loaded'}").toUtf8();
    PdfEngine engine;
    const PdfAnswer answer = engine.Make(
        "<link rel=stylesheet href='" + address.toStdString() + "'><style>@import '" +
            address.toStdString() + "';</style><img src='" + address.toStdString() + "'><p>text",
        Paper::A4);
    EXPECT_EQ(answer.trouble, QString());
    EXPECT_EQ(TextOf(answer.pdf), u"text"_s);
}

TEST_F(PdfEngineTest, NamesThePackageWhereItIsMissing) {
    qputenv("PATH", folder_.path().toUtf8());
    const QString line =
        u"PDF needs WeasyPrint, which is not installed; install the package weasyprint"_s;
    EXPECT_EQ(PdfEngine::WhatIsMissing(), line);
    EXPECT_EQ(PdfEngine().Make("<p>text", Paper::A4).trouble, line);
}

TEST_F(PdfEngineTest, SaysInALineWhyThereIsNoPdf) {
    const QString start = u"WeasyPrint cannot make the PDF: "_s;
    StandIn("echo Traceback >&2; echo 'OSError: no pango' >&2; exit 1");
    EXPECT_EQ(PdfEngine().Make("<p>text", Paper::A4).trouble, start + "OSError: no pango"_L1);
    StandIn("exit 7");
    EXPECT_EQ(PdfEngine().Make("<p>text", Paper::A4).trouble,
              start + "its process ended with exit code 7"_L1);
    StandIn("kill -KILL $$");
    EXPECT_EQ(PdfEngine().Make("<p>text", Paper::A4).trouble,
              start + "its process was ended by signal 9"_L1);
    StandIn("printf 'trouble 9\\nBad: this'; cat >/dev/null");
    EXPECT_EQ(PdfEngine().Make("<p>text", Paper::A4).trouble, start + "Bad: this"_L1);
    QFile::remove(folder_.filePath(u"python"_s));
    EXPECT_TRUE(PdfEngine().Make("<p>text", Paper::A4).trouble.startsWith(start));
}

// A module in place of the engine whose C code prints a line of its own.
TEST_F(PdfEngineTest, KeepsWhatALibraryPrintsOutOfItsAnswers) {
    Make(u"weasyprint.py"_s, "import os\n"
                             "class CSS:\n"
                             "    def __init__(self, string): pass\n"
                             "class HTML:\n"
                             "    def __init__(self, string, url_fetcher): self.text = string\n"
                             "    def write_pdf(self, stylesheets):\n"
                             "        os.write(1, b'stray\\n')\n"
                             "        print('odd')\n"
                             "        return self.text.encode()\n");
    qputenv("PYTHONPATH", folder_.path().toUtf8());
    PdfEngine engine;
    EXPECT_EQ(engine.Make("<p>one", Paper::A4).pdf, "<p>one");
    EXPECT_EQ(engine.Make("<p>two", Paper::A4).pdf, "<p>two");
    qunsetenv("PYTHONPATH");
}

// What comes behind such an answer would be taken for that of the next person.
TEST_F(PdfEngineTest, EndsAProcessThatAnswersInAnUnknownForm) {
    const QString trouble =
        u"WeasyPrint cannot make the PDF: its process answered in an unknown form"_s;
    PdfEngine engine;
    for (const QByteArray line : {"stray", "pdf", "pdf x", "pdf -1", "odd 3", "pdf 3 3", ""}) {
        StandIn("read header; echo '" + line + "'; printf 'pdf 3\\nONE'; exec sleep 100");
        EXPECT_EQ(engine.Make("<p>one", Paper::A4).trouble, trouble) << line.toStdString();
        EXPECT_FALSE(engine.IsAtWork());
    }
    StandIn("printf 'pdf 3\\nTWO'; cat >/dev/null");
    EXPECT_EQ(engine.Make("<p>two", Paper::A4).pdf, "TWO");
}

TEST_F(PdfEngineTest, GivesNoWarningOfAnEarlierDocumentAsTheReason) {
    StandIn(
        "read header; read text; echo odd >&2; printf 'pdf 3\\nONE'; read header; kill -KILL $$");
    PdfEngine engine;
    EXPECT_EQ(engine.Make("<p>one\n", Paper::A4).pdf, "ONE");
    EXPECT_EQ(engine.Make("<p>two\n", Paper::A4).trouble,
              u"WeasyPrint cannot make the PDF: its process was ended by signal 9"_s);
}

// A document larger than a pipe holds, to a process that dies before it has read it.
TEST_F(PdfEngineTest, SurvivesAProcessThatDoesNotRead) {
    StandIn("exit 1");
    EXPECT_NE(PdfEngine().Make(std::string(1'000'000, 'x'), Paper::A4).trouble, QString());
}

TEST_F(PdfEngineTest, EndsTheProcessOnCancelAndBeginsAnew) {
    StandIn("echo $$ >" + folder_.filePath(u"pid"_s).toUtf8() + "; exec sleep 100");
    PdfEngine engine;
    engine.Start("<p>text", Paper::A4);
    EXPECT_TRUE(engine.IsAtWork());
    QFile file(folder_.filePath(u"pid"_s));
    ASSERT_TRUE(Becomes([&] {
        file.close();
        return file.open(QIODevice::ReadOnly) && file.peek(100).endsWith('\n');
    }));
    const pid_t process = file.readAll().trimmed().toInt();
    EXPECT_EQ(kill(process, 0), 0);
    engine.Cancel();
    EXPECT_FALSE(engine.IsAtWork());
    EXPECT_NE(kill(process, 0), 0);

    StandIn("printf 'pdf 3\\nPDF'; cat >/dev/null");
    EXPECT_EQ(engine.Make("<p>text", Paper::A4).pdf, "PDF");
}

} // namespace
