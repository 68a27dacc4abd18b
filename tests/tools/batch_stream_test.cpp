// The batch as one end of a conversation: an engine that pipes lines through the program
// gets each answer before it sends the next line.

#include "tests/tools/batch_lines.h"
#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"

#include <gtest/gtest.h>

#include <fstream>

#include <sys/stat.h>

namespace {

const Arguments conversation = BatchOptions({"--topic", "Personal Day"});

std::string NameIn(const std::string &line) {
    const Names names = NamesIn(line + '\n');
    return names.size() == 1 ? names.front() : "";
}

TEST(BatchStream, AnswersALineOfJsonBeforeTheNextIsWritten) {
    Program program(conversation);
    for (int index = 0; index < 100; ++index) {
        const std::string number = std::to_string(index);
        program.Write(R"({"first":"Ann)" + number +
                      R"(","last":"Lee","month":3,"day":7,"year":1990})" + '\n');
        ASSERT_EQ(NameIn(program.ReadLine()), "ANN" + number + " LEE");
    }
    const Finished run = program.Finish();
    ExpectGood(run);
    EXPECT_EQ(run.out, "");
}

TEST(BatchStream, AnswersARowBeforeTheNextIsWritten) {
    Program program(conversation);
    program.Write("first,last,month,day,year\n");
    for (const char *name : {"Ann", "Bob", "Cat", "Dee"}) {
        program.Write(std::string(name) + ",Lee,3,7,1990\r\n");
        QString expected = QString(name).toUpper() + " LEE";
        ASSERT_EQ(NameIn(program.ReadLine()), expected.toStdString());
    }
    ExpectGood(program.Finish());
}

TEST(BatchStream, AnswersAWrongLineBeforeTheNextIsWritten) {
    Program program(conversation);
    for (int round = 0; round < 3; ++round) {
        program.Write("{}\n");
        ASSERT_EQ(NameIn(program.ReadLine()), "!");
        EXPECT_NE(program.ReadErrorLine().find("line " + std::to_string(2 * round + 1)),
                  std::string::npos);
        program.Write(R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})"
                      "\n");
        ASSERT_EQ(NameIn(program.ReadLine()), "ANN LEE");
    }
    EXPECT_EQ(program.Finish().exitCode, 1);
}

TEST(BatchStream, AnswersAFirstLineThatIsNothing) {
    Program program(conversation);
    program.Write("garbage\n");
    ASSERT_EQ(NameIn(program.ReadLine()), "!");
    EXPECT_NE(program.ReadErrorLine().find("line 1:"), std::string::npos);
    program.Write(R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})"
                  "\n");
    ASSERT_EQ(NameIn(program.ReadLine()), "ANN LEE");
    EXPECT_EQ(program.Finish().exitCode, 1);
}

TEST(BatchStream, AnswersTheLongReportOfEveryTopicToo) {
    Program program(BatchOptions());
    for (int round = 0; round < 3; ++round) {
        program.Write(R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})"
                      "\n");
        const std::string line = program.ReadLine();
        EXPECT_EQ(TopicsOf(ParseObject(line)).size(), 22U);
    }
    ExpectGood(program.Finish());
}

TEST(BatchStream, WaitsForTheRestOfALine) {
    Program program(conversation);
    program.Write(R"({"first":"Ann","last")");
    program.Write(R"(:"Lee","month":3,"day":7,"year":1990})"
                  "\n"
                  R"({"first":"Bob",)");
    EXPECT_EQ(NameIn(program.ReadLine()), "ANN LEE");
    program.Write(R"("last":"Ray","month":3,"day":7,"year":1990})"
                  "\n");
    EXPECT_EQ(NameIn(program.ReadLine()), "BOB RAY");
    ExpectGood(program.Finish());
}

TEST(BatchStream, TakesTheLastLineWithoutALineBreak) {
    Program program(conversation);
    const Finished run = program.Finish(R"({"first":"Ann","last":"Lee","month":3,"day":7,)"
                                        R"("year":1990})");
    ExpectGood(run);
    EXPECT_EQ(NamesIn(run.out), (Names{"ANN LEE"}));
}

class BatchPipe : public FolderTest {};

// A named pipe has no size and no end in sight; it is read like any other file.
TEST_F(BatchPipe, IsReadLineByLine) {
    const std::string pipe = Path("people");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    Program program({"--batch", pipe, "--topic", "Personal Day", "--today", "2026-11-16"});
    std::ofstream people(pipe); // opens once the program has opened its end
    people << R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})" << std::endl;
    EXPECT_EQ(NameIn(program.ReadLine()), "ANN LEE");
    people << R"({"first":"Bob","last":"Ray","month":3,"day":7,"year":1990})" << std::endl;
    EXPECT_EQ(NameIn(program.ReadLine()), "BOB RAY");
    people.close();
    ExpectGood(program.Finish());
}

} // namespace
