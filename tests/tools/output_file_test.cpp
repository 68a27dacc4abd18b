// Where the program's bytes go: a file that is written whole or not at all, or standard output.

#include "tests/tools/folder_test.h"
#include "tests/tools/program.h"

#include <gtest/gtest.h>

namespace {

constexpr char twoPeople[] = R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})"
                             "\n"
                             R"({"first":"Bob","last":"Ray","month":4,"day":8,"year":1991})"
                             "\n";

const Arguments batch{"--batch", "-", "--today", "2026-11-16"};

/// A run that writes, and what it reads.
struct Writer {
    Arguments arguments;
    std::string input;
};

/// One of every kind that writes much.
const std::vector<Writer> writers{{ann, {}},
                                  {ann + Arguments{"--format", "json"}, {}},
                                  {ann + Arguments{"--format", "rtf"}, {}},
                                  {{"--book"}, {}},
                                  {batch, twoPeople}};

class OutputFile : public FolderTest {};

TEST_F(OutputFile, HoldsWhatStandardOutputWouldGet) {
    std::vector<Writer> all = writers;
    all.insert(all.end(), {{{"--list-topics"}, {}}, {{"--completion", "bash"}, {}}});
    for (const auto &[arguments, input] : all) {
        const Finished printed = RunProgram(arguments, input);
        ExpectGood(printed);
        const Finished written =
            RunProgram(arguments + Arguments{"--output", Path("report")}, input);
        ExpectGood(written);
        EXPECT_EQ(written.out, "");
        EXPECT_EQ(Files(), (FileMap{{"report", printed.out}}));
    }
}

// Standard output on a full disk does not matter to a file.
TEST_F(OutputFile, ReplacesAnExistingFileByAShorterOne) {
    const std::string file = Make("report", std::string(1'000'000, 'x'));
    Surroundings full;
    full.outputFile = "/dev/full";
    ExpectGood(RunProgram(ann + Arguments{"--output", file}, {}, full));
    EXPECT_EQ(Read(file), RunProgram(ann).out);
}

TEST_F(OutputFile, ThatCannotBeOpenedIsReported) {
    const std::string file = Path("no/such/folder/report");
    for (const auto &[arguments, input] : writers) {
        const Finished run = RunProgram(arguments + Arguments{"--output", file}, input);
        ExpectFailed(run, {"--output: " + Shown(file) + ": No such file or directory"});
        EXPECT_EQ(run.out, "");
    }
    EXPECT_TRUE(Files().empty());
}

// A disk that runs full in the middle: nothing of the new report is seen, the file that
// was there is whole, and no half of one is left beside it.
TEST_F(OutputFile, StandsAsItWasWhenTheDiskRunsFull) {
    const std::string file = Make("report", "what stood here before");
    Surroundings surroundings;
    surroundings.mostBytes = 1000;
    for (const auto &[arguments, input] : writers) {
        for (const std::string &name : {file, Path("new")}) {
            const Finished run =
                RunProgram(arguments + Arguments{"--output", name}, input, surroundings);
            // The limit on files stands for the full disk; the reason is the system's own.
            ExpectFailed(run, {"--output: " + Shown(name) + ": File too large"});
            EXPECT_EQ(run.out, "");
            EXPECT_EQ(Files(), (FileMap{{"report", "what stood here before"}}));
        }
    }
    const Finished run =
        RunProgram(batch + Arguments{"--output-dir", Path("people")}, twoPeople, surroundings);
    ExpectFailed(run, {"--output-dir: ", "person-000001.txt: File too large"});
    EXPECT_EQ(Files(), (FileMap{{"people/", ""}, {"report", "what stood here before"}}));
}

TEST_F(OutputFile, AppearsAtTheEndOfABatchAndNotBeforeNorWhenItIsKilled) {
    const std::string file = Make("people", "before");
    for (const bool killed : {true, false}) {
        Program program(batch + Arguments{"--output", file});
        // The answer to a wrong line shows that the lines before it are done.
        program.Write(twoPeople + std::string("{\n"));
        EXPECT_NE(program.ReadErrorLine().find("line 3"), std::string::npos);
        EXPECT_EQ(Read(file), "before");
        if (killed)
            program.Kill();
        EXPECT_EQ(program.Finish().exitCode, killed ? -1 : 1);
        EXPECT_EQ(Read(file).starts_with(R"({"first":"ANN")"), !killed);
    }
}

// Where a signal ends the program, nothing half remains, and the shell sees which one it was.
TEST_F(OutputFile, LeavesNothingTemporaryBehindAfterASignal) {
    const std::string file = Make("people", "before");
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGPIPE, SIGXCPU}) {
        Program program(batch + Arguments{"--output", file});
        program.Write(twoPeople + std::string("{\n"));
        EXPECT_NE(program.ReadErrorLine().find("line 3"), std::string::npos);
        EXPECT_EQ(Files().size(), 2U); // the unfinished file stands beside it
        program.Signal(signal);
        EXPECT_EQ(program.Finish().signal, signal);
        EXPECT_EQ(Files(), (FileMap{{"people", "before"}}));
    }
}

// More messages than a pipe takes.
TEST_F(OutputFile, LeavesNothingTemporaryBehindWhenOneMessageIsReadAndNoMore) {
    std::string wrong;
    for (int count = 0; count < 5000; ++count)
        wrong += "{}\n";
    const std::string file = Make("wrong", wrong);
    const Finished run = RunShell("{ \"$0\" --batch '" + file + "' -o '" + Path("out") +
                                  "' 2>&1; echo $? >&3; } 3>&2 | head -n 1");
    ExpectOneLine(run.out, {"line 1: first is missing"});
    EXPECT_EQ(run.err, std::to_string(128 + SIGPIPE) + '\n');
    EXPECT_EQ(Files(), (FileMap{{"wrong", wrong}}));
}

TEST_F(OutputFile, IsAppendedToThroughItsDescriptor) {
    const std::string printed = RunProgram(ann + Arguments{"--topic", "Personal Day"}).out;
    const std::string line =
        "\"$0\" --first Ann --last Lee --date 1990-03-07 --today 2026-11-16 --topic 'Personal Day'";
    for (const std::string redirected :
         {" --output /dev/stdout >>", " --output - >>", " -o /dev/fd/3 3>>"}) {
        const std::string file = Make("log", "before\n");
        const Finished run = RunShell(line + redirected + "'" + file + "'");
        EXPECT_EQ(run.exitCode, 0) << run.err;
        EXPECT_EQ(Files(), (FileMap{{"log", "before\n" + printed}})) << redirected;
    }
}

TEST(StandardOutput, ThatIsFullOrClosedIsReported) {
    Surroundings full;
    full.outputFile = "/dev/full";
    Surroundings closed;
    closed.noOutput = true;
    std::vector<Writer> all = writers;
    all.insert(all.end(), {{{"--help"}, {}},
                           {{"--version"}, {}},
                           {ann + Arguments{"--topic", "Personal Day"}, {}},
                           {batch, "{}"}});
    for (const auto &[arguments, input] : all) {
        for (const auto &[surroundings, reason] :
             {std::pair(full, "No space left on device"), {closed, "Bad file descriptor"}}) {
            const Finished run = RunProgram(arguments, input, surroundings);
            EXPECT_EQ(run.exitCode, 3);
            EXPECT_NE(
                run.err.find(std::string("orravane-report: standard output: ") + reason + '\n'),
                std::string::npos)
                << run.err;
        }
    }
}

class ClosedStreams : public FolderTest {};

// No file that is opened takes their place, in which it would get what is meant for them.
TEST_F(ClosedStreams, LeaveNothingInAFile) {
    Surroundings closed;
    closed.noInput = true;
    closed.noOutput = true;
    closed.noError = true;
    EXPECT_EQ(RunProgram(ann + Arguments{"--output", Path("report")}, {}, closed).exitCode, 0);
    EXPECT_EQ(Read(Path("report")), RunProgram(ann).out);

    Make("people", twoPeople + std::string("{}\n"));
    const Arguments line{"--batch", Path("people"), "--today", "2026-11-16"};
    EXPECT_EQ(RunProgram(line + Arguments{"--output", Path("answers")}, {}, closed).exitCode, 1);
    EXPECT_EQ(Read(Path("answers")), RunProgram(line).out);
}

} // namespace
