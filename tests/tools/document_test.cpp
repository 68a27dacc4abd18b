// Documents from the built program, with the real engine of the PDFs or a stand-in for it.

#include "tests/support/becomes.h"
#include "tests/support/stand_in_engine.h"
#include "tests/tools/folder_test.h"
#include "tests/tools/program.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

class DocumentTest : public FolderTest {
protected:
    /// Surroundings in which the engine is a program whose interpreter is this script of the
    /// shell.
    Surroundings StandIn(const std::string &script) const {
        std::filesystem::create_directory(Path("bin"));
        MakeStandInEngine(QString::fromStdString(Path("bin")), QByteArray::fromStdString(script),
                          qgetenv("PATH"));
        Surroundings surroundings;
        surroundings.environment["PATH"] = Path("bin");
        return surroundings;
    }

    /// Three people and a wrong line.
    std::string People() const {
        return Make("people.csv", "first,last,birthdate\nAnn,Lee,1990-03-07\nBob,,1990-01-01\n"
                                  "Eve,Moss,1984-05-07\nMax,Hill,1971-12-31\n");
    }
};

TEST_F(DocumentTest, APdfGoesToAPipeAndToAFileAndIsTheSame) {
    const Finished piped = RunProgram(ann + Arguments{"--format", "pdf"});
    ExpectGood(piped);
    EXPECT_TRUE(piped.out.starts_with("%PDF-"));
    const Arguments toFile{"-f", "pdf", "-o", Path("ann.pdf")};
    ExpectGood(RunProgram(ann + toFile));
    EXPECT_EQ(Read(Path("ann.pdf")), piped.out);
}

TEST_F(DocumentTest, APdfIsNothingForATerminal) {
    Surroundings terminal;
    terminal.outputFile = "/dev/ptmx"; // a terminal of its own
    const Finished run = RunProgram(ann + Arguments{"-f", "pdf"}, {}, terminal);
    ExpectRefused(run, {"--format: \"pdf\"", "--output FILE"});
    ExpectRefused(RunProgram(ann + Arguments{"-f", "pdf", "-o", "/dev/stdout"}, {}, terminal),
                  {"--format: \"pdf\"", "--output FILE"});
    ExpectRefused(RunProgram(ann + Arguments{"-f", "pdf", "-o", "/dev/ptmx"}),
                  {"--format: \"pdf\"", "--output FILE"});
}

TEST_F(DocumentTest, OfOnePersonHasTheNameComposedWhereThatIsAskedFor) {
    const std::string people =
        Make("people.csv", "first,last,birthdate\nE\u0301va,Lee,1990-03-07\n");
    for (const char *format : {"html", "markdown"}) {
        const Arguments day{"--normalize", "--format", format, "--today", "2026-11-16"};
        const Finished run = RunProgram(
            Arguments{"--first", "E\u0301va", "--last", "Lee", "--date", "1990-03-07"} + day);
        ExpectGood(run);
        EXPECT_NE(run.out.find("\u00C9va Lee"), std::string::npos) << run.out.substr(0, 500);
        const Arguments folder{"--batch", people, "--output-dir", Path(format)};
        ExpectGood(RunProgram(folder + day));
        const FileMap files = Files(Path(format));
        ASSERT_EQ(files.size(), 1U);
        EXPECT_EQ(files.begin()->second, run.out);
    }
}

TEST_F(DocumentTest, AMissingEngineIsNamedAndNothingIsWritten) {
    const std::string people = People();
    Surroundings noEngine;
    noEngine.environment["PATH"] = Path("");
    const FileMap before = Files();
    for (const Arguments &arguments :
         {ann + Arguments{"-f", "pdf", "-o", Path("ann.pdf")},
          Arguments{"--batch", people, "-f", "pdf", "--output-dir", Path("made")},
          Arguments{"--batch", people, "-f", "pdf", "--output-dir", Path("made"), "--jobs", "2"}}) {
        const Finished run = RunProgram(arguments, {}, noEngine);
        ExpectFailed(run, {"install the package weasyprint"});
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(Files(), before);
    }
}

TEST_F(DocumentTest, AnEngineThatFailsLeavesTheEarlierFile) {
    Make("ann.pdf", "earlier");
    const Surroundings fails = StandIn("echo 'OSError: no pango' >&2; exit 1");
    ExpectFailed(RunProgram(ann + Arguments{"-f", "pdf", "-o", Path("ann.pdf")}, {}, fails),
                 {"WeasyPrint cannot make the PDF: OSError: no pango"});
    EXPECT_EQ(Read(Path("ann.pdf")), "earlier");
    const Finished batch = RunProgram(
        {"--batch", People(), "-f", "pdf", "--output-dir", Path("made"), "--jobs", "2"}, {}, fails);
    EXPECT_EQ(batch.exitCode, 3);
    EXPECT_NE(batch.err.find("OSError: no pango"), std::string::npos) << batch.err;
    EXPECT_EQ(Files(Path("made")), FileMap());
}

// Interrupted from outside, so that the engine itself hears nothing of it.
TEST_F(DocumentTest, AnInterruptEndsTheEngineToo) {
    const Surroundings slow = StandIn("echo $$ >" + Path("pid") + "; exec sleep 100");
    Program program(ann + Arguments{"-f", "pdf", "-o", Path("ann.pdf")}, slow);
    ASSERT_TRUE(Becomes(
        [&] { return std::filesystem::exists(Path("pid")) && Read(Path("pid")).ends_with('\n'); }));
    const pid_t engine = std::stoi(Read(Path("pid")));
    EXPECT_EQ(kill(engine, 0), 0);
    program.Signal(SIGINT);
    EXPECT_EQ(program.Finish().signal, SIGINT);
    EXPECT_TRUE(Becomes([=] { return kill(engine, 0) != 0; })); // the system has tidied it up
    EXPECT_FALSE(std::filesystem::exists(Path("ann.pdf")));
}

TEST_F(DocumentTest, AFullOrClosedOutputIsReported) {
    const Surroundings quick = StandIn("printf 'pdf 3\\nPDF'; exec cat >/dev/null");
    for (const char *format : {"html", "markdown", "pdf"}) {
        Surroundings full = quick;
        full.outputFile = "/dev/full";
        Surroundings closed = quick;
        closed.noOutput = true;
        const Arguments arguments = ann + Arguments{"-f", format};
        ExpectFailed(RunProgram(arguments, {}, full), {"standard output: No space left on device"});
        ExpectFailed(RunProgram(arguments, {}, closed), {"standard output: Bad file descriptor"});
    }
}

// By the real engine, which needs a folder for its fonts.
TEST_F(DocumentTest, AReaderThatGoesEndsTheProgramAndNothingIsLeftBehind) {
    const std::string person =
        "TMPDIR='" + Path("") + "' \"$0\" --first Ann --last Lee --date 1990-03-07 --format ";
    const auto statusOf = [&](const std::string &format) {
        return RunShell("{ " + person + format + "; echo $? >&2; } | :").err;
    };
    EXPECT_EQ(statusOf("html"), std::to_string(128 + SIGPIPE) + '\n');
    EXPECT_EQ(statusOf("pdf"), "orravane-report: standard output: Broken pipe\n3\n");
    EXPECT_EQ(Files(), FileMap());
}

TEST_F(DocumentTest, ABatchMakesAFileForEachPersonWithOneProcessAndWithMany) {
    const std::string people = People();
    const auto make = [&](const std::string &format, const std::string &folder,
                          const std::string &jobs) {
        const Finished run = RunProgram({"--batch", people, "-f", format, "--output-dir",
                                         Path(folder), "--jobs", jobs, "--today", "2026-11-16"});
        EXPECT_EQ(run.exitCode, 1) << run.err;
        ExpectOneLine(run.err, {"line 3"});
        return Files(Path(folder));
    };
    const FileMap pdfs = make("pdf", "pdf-2", "2");
    ASSERT_EQ(pdfs.size(), 3U);
    for (const char *line : {"2", "4", "5"})
        EXPECT_TRUE(pdfs.at("person-00000" + std::string(line) + ".pdf").starts_with("%PDF-"));
    EXPECT_EQ(make("pdf", "pdf-1", "1"), pdfs);

    const FileMap texts = make("markdown", "md-2", "2");
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts.at("person-000002.md"), RunProgram(ann + Arguments{"-f", "markdown"}).out);
    EXPECT_EQ(make("markdown", "md-1", "1"), texts);
}

} // namespace
