// Where the bytes go: a file that is written whole or not at all, or standard output.

#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"
#include "tests/tools/program.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

const Arguments ann{"--first", "Ann", "--last", "Lee",  "--month", "3",
                    "--day",   "7",   "--year", "1990", "--today", "2026-11-16"};

Arguments operator+(Arguments left, const Arguments &right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

constexpr char twoPeople[] = R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})"
                             "\n"
                             R"({"first":"Bob","last":"Ray","month":4,"day":8,"year":1991})"
                             "\n";

const Arguments batch{"--batch", "-", "--today", "2026-11-16"};

class OutputFile : public FolderTest {};

TEST_F(OutputFile, HoldsWhatStandardOutputWouldGet) {
    for (const char *format : {"text", "json", "rtf"}) {
        SCOPED_TRACE(format);
        const Arguments line = ann + Arguments{"--format", format};
        const Finished printed = RunProgram(line);
        ExpectGood(printed);
        const Finished written = RunProgram(line + Arguments{"--output", Path("report")});
        ExpectGood(written);
        EXPECT_EQ(written.out, "");
        EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"report", printed.out}}));
    }
}

TEST_F(OutputFile, HoldsABookOrABatchAlike) {
    const Finished book = RunProgram({"--book"});
    ExpectGood(RunProgram({"--book", "--output", Path("book")}));
    EXPECT_EQ(Read(Path("book")), book.out);

    const Finished people = RunProgram(batch, twoPeople);
    ExpectGood(people);
    const Finished written = RunProgram(batch + Arguments{"--output", Path("people")}, twoPeople);
    ExpectGood(written);
    EXPECT_EQ(written.out, "");
    EXPECT_EQ(Read(Path("people")), people.out);
}

TEST_F(OutputFile, ReplacesAnExistingFileByAShorterOne) {
    const std::string file = Make("report.txt", std::string(1'000'000, 'x'));
    const Arguments line = ann + Arguments{"--topic", "Personal Day"};
    ExpectGood(RunProgram(line + Arguments{"--output", file}));
    EXPECT_EQ(Read(file), RunProgram(line).out);
}

TEST_F(OutputFile, MayHaveAnyName) {
    const std::string name = "Bericht für Ännchen – 2026 😀.txt";
    ExpectGood(RunProgram(ann + Arguments{"--output", Path(name)}));
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{name, RunProgram(ann).out}}));
}

TEST_F(OutputFile, CannotBeAFolder) {
    std::filesystem::create_directory(Path("folder"));
    for (const Arguments &line : {ann, Arguments{"--book"}}) {
        const Finished run = RunProgram(line + Arguments{"--output", Path("folder")});
        ExpectFailed(run, {"--output: " + Shown(Path("folder"))});
        EXPECT_EQ(run.out, "");
    }
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"folder/", ""}}));
}

TEST_F(OutputFile, CannotStandInAFolderThatIsNotThere) {
    const std::string file = Path("no/such/folder/report.txt");
    for (const Arguments &line : {ann, Arguments{"--book"}}) {
        const Finished run = RunProgram(line + Arguments{"--output", file});
        ExpectFailed(run, {"--output: " + Shown(file) + ": No such file or directory"});
        EXPECT_EQ(run.out, "");
    }
    EXPECT_TRUE(Files().empty());
}

TEST_F(OutputFile, CannotStandBelowAFile) {
    const std::string file = Make("file", "before");
    const Finished run = RunProgram(ann + Arguments{"--output", file + "/report.txt"});
    ExpectFailed(run, {"--output: " + Shown(file + "/report.txt")});
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"file", "before"}}));
}

TEST_F(OutputFile, CannotBeOpenedByABatchEither) {
    std::filesystem::create_directory(Path("folder"));
    const Finished run = RunProgram(batch + Arguments{"--output", Path("folder")}, twoPeople);
    ExpectFailed(run, {"--output: " + Shown(Path("folder"))});
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"folder/", ""}}));
}

// A disk that runs full in the middle: nothing of the new report is seen, the file that
// was there is whole, and no half of one is left beside it.
TEST_F(OutputFile, StandsAsItWasWhenTheDiskRunsFull) {
    const std::string file = Make("report.txt", "what stood here before");
    Surroundings surroundings;
    surroundings.mostBytes = 1000;
    for (const Arguments &line : {ann, ann + Arguments{"--format", "rtf"}, Arguments{"--book"}}) {
        const Finished run = RunProgram(line + Arguments{"--output", file}, {}, surroundings);
        ExpectFailed(run, {"--output: " + Shown(file)});
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(Files(),
                  (std::map<std::string, std::string>{{"report.txt", "what stood here before"}}));
    }
}

TEST_F(OutputFile, StandsAsItWasWhenTheDiskRunsFullInABatch) {
    const std::string file = Make("people", "what stood here before");
    Surroundings surroundings;
    surroundings.mostBytes = 1000;
    const Finished run = RunProgram(batch + Arguments{"--output", file}, twoPeople, surroundings);
    ExpectFailed(run, {"--output: " + Shown(file)});
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"people", "what stood here before"}}));
}

TEST_F(OutputFile, IsNotBegunWhenTheDiskRunsFull) {
    Surroundings surroundings;
    surroundings.mostBytes = 1000;
    ExpectFailed(RunProgram(ann + Arguments{"--output", Path("report.txt")}, {}, surroundings),
                 {"--output: " + Shown(Path("report.txt"))});
    EXPECT_TRUE(Files().empty());
}

TEST_F(OutputFile, AppearsAtTheEndOfABatchAndNotBefore) {
    const std::string file = Make("people", "before");
    Program program(batch + Arguments{"--output", file});
    // The answer to a wrong line shows that the lines before it are done.
    program.Write(twoPeople + std::string("{\n"));
    EXPECT_NE(program.ReadErrorLine().find("line 3"), std::string::npos);
    EXPECT_EQ(Read(file), "before");
    const Finished run = program.Finish();
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(Read(file).starts_with(R"({"first":"ANN")"));
}

TEST_F(OutputFile, StandsAsItWasWhenTheProgramIsKilled) {
    const std::string file = Make("people", "before");
    Program program(batch + Arguments{"--output", file});
    program.Write(twoPeople + std::string("{\n"));
    EXPECT_NE(program.ReadErrorLine().find("line 3"), std::string::npos);
    program.Kill();
    EXPECT_NE(program.Finish().signal, 0);
    EXPECT_EQ(Read(file), "before");
}

TEST(StandardOutput, ThatIsFullIsReported) {
    Surroundings full;
    full.outputFile = "/dev/full";
    for (const Arguments &line :
         {ann, ann + Arguments{"--format", "json"}, ann + Arguments{"--format", "rtf"},
          ann + Arguments{"--topic", "Personal Day"}, Arguments{"--book"},
          Arguments{"--book", "--format", "json"}, Arguments{"--help"}, Arguments{"--version"}})
        ExpectFailed(RunProgram(line, {}, full), {"standard output"});
    ExpectFailed(RunProgram(batch, twoPeople, full), {"standard output"});
}

TEST(StandardOutput, ThatIsFullDoesNotMatterToAFile) {
    QTemporaryDir folder;
    const std::string file = folder.filePath("report").toStdString();
    Surroundings full;
    full.outputFile = "/dev/full";
    ExpectGood(RunProgram(ann + Arguments{"--output", file}, {}, full));
    EXPECT_TRUE(std::filesystem::file_size(file) > 0);
}

TEST(StandardOutput, ThatIsClosedIsReported) {
    Surroundings closed;
    closed.noOutput = true;
    for (const Arguments &line : {ann, Arguments{"--book"}, Arguments{"--version"}})
        ExpectFailed(RunProgram(line, {}, closed), {"standard output: Bad file descriptor"});
    ExpectFailed(RunProgram(batch, twoPeople, closed), {"standard output: Bad file descriptor"});
}

TEST(StandardInput, ThatIsClosedIsReported) {
    Surroundings closed;
    closed.noInput = true;
    ExpectRefused(RunProgram(batch, {}, closed), {"--batch", "Bad file descriptor"});
    ExpectGood(RunProgram(ann, {}, closed));
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
