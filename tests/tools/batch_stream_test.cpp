// The batch as one end of a conversation: an engine that pipes lines through the program
// gets each answer before it sends the next line.

#include "tests/tools/batch_answers.h"
#include "tests/tools/folder_test.h"
#include "tests/tools/program.h"

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>

#include <sys/stat.h>

namespace {

const Arguments options{"--topic", "Personal Day", "--today", "2026-11-16"};
const Arguments conversation = Arguments{"--batch", "-"} + options;

std::string Ann(const std::string &more = {}) {
    return R"({"first":"Ann)" + more + R"(","last":"Lee","month":3,"day":7,"year":1990})" + '\n';
}

std::string NameIn(const std::string &line) {
    const Names names = NamesIn(line + '\n');
    return names.size() == 1 ? names.front() : "";
}

TEST(BatchStream, AnswersALineOfJsonBeforeTheNextIsWritten) {
    Program program(conversation);
    for (int index = 0; index < 100; ++index) {
        program.Write(Ann(std::to_string(index)));
        ASSERT_EQ(NameIn(program.ReadLine()), "ANN" + std::to_string(index) + " LEE");
    }
    const Finished run = program.Finish();
    ExpectGood(run);
    EXPECT_EQ(run.out, "");
}

TEST(BatchStream, AnswersTheLongReportOfEveryTopicAndARowAlike) {
    Program program({"--batch", "-"});
    program.Write("first,last,month,day,year\n");
    for (const std::string name : {"Ann", "Bob", "Cat"}) {
        program.Write(name + ",Lee,3,7,1990\r\n");
        const std::string line = program.ReadLine();
        EXPECT_EQ(NameIn(line), QString::fromStdString(name).toUpper().toStdString() + " LEE");
        EXPECT_GT(line.size(), 20'000U);
    }
    ExpectGood(program.Finish());
}

TEST(BatchStream, AnswersAWrongLineBeforeTheNextIsWrittenTheFirstOneToo) {
    Program program(conversation);
    for (int round = 0; round < 3; ++round) {
        program.Write("garbage\n");
        ASSERT_EQ(NameIn(program.ReadLine()), "!");
        EXPECT_NE(program.ReadErrorLine().find("line " + std::to_string(2 * round + 1)),
                  std::string::npos);
        program.Write(Ann());
        ASSERT_EQ(NameIn(program.ReadLine()), "ANN LEE");
    }
    EXPECT_EQ(program.Finish().exitCode, 1);
}

TEST(BatchStream, WaitsForTheRestOfALineAndTakesTheLastWithoutALineBreak) {
    Program program(conversation);
    program.Write(Ann().substr(0, 20));
    program.Write(Ann().substr(20) + Ann("2").substr(0, 9));
    EXPECT_EQ(NameIn(program.ReadLine()), "ANN LEE");
    program.Write(Ann("2").substr(9));
    EXPECT_EQ(NameIn(program.ReadLine()), "ANN2 LEE");
    const Finished run = program.Finish(Ann("3").substr(0, Ann("3").size() - 1));
    ExpectGood(run);
    EXPECT_EQ(NamesIn(run.out), Names{"ANN3 LEE"});
}

TEST(BatchStream, GoesOnHoweverManyLinesAreWrong) {
    std::string input = Ann();
    for (int count = 0; count < 1000; ++count)
        input += "{}\n";
    const Finished run = RunProgram(conversation, input + Ann());
    EXPECT_EQ(run.exitCode, 1);
    const Names names = NamesIn(run.out);
    ASSERT_EQ(names.size(), 1002U);
    EXPECT_EQ(names[500], "!");
    EXPECT_EQ(names.back(), "ANN LEE");
    EXPECT_EQ(Lines(run.err).size(), 1000U);
}

// Who reads no more ends the program, as usual in a pipeline, without a word.
TEST(BatchStream, EndsWithItsReader) {
    const std::string line = Ann().substr(0, Ann().size() - 1);
    const Finished run =
        RunShell("yes '" + line + "' | { \"$0\" --batch -; echo $? >&2; } | head -n 1");
    EXPECT_EQ(NamesIn(run.out), Names{"ANN LEE"});
    EXPECT_EQ(run.err, std::to_string(128 + SIGPIPE) + '\n');
}

class BatchInput : public FolderTest {};

// A named pipe has no size and no end in sight; it is read like any other file.
TEST_F(BatchInput, MayBeANamedPipe) {
    const std::string pipe = Path("people");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    Program program(Arguments{"--batch", pipe} + options);
    std::ofstream people(pipe); // opens once the program has opened its end
    people << Ann() << std::flush;
    EXPECT_EQ(NameIn(program.ReadLine()), "ANN LEE");
    people << Ann("2") << std::flush;
    EXPECT_EQ(NameIn(program.ReadLine()), "ANN2 LEE");
    people.close();
    ExpectGood(program.Finish());
}

// An input that breaks off is not the same as one that ends: a script must not take the
// answers for all of them.
TEST_F(BatchInput, ThatCannotBeReadIsReported) {
    Surroundings folder;
    folder.inputFile = Path("");
    ExpectFailed(RunProgram(conversation, {}, folder), {"--batch", "Is a directory"});
    Surroundings closed;
    closed.noInput = true;
    ExpectFailed(RunProgram(conversation, {}, closed), {"--batch", "Bad file descriptor"});
}

} // namespace
