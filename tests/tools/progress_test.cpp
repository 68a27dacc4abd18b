// The bar on standard error: there for a person at a terminal, absent for everything else.

#include "tests/tools/batch_answers.h"
#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"

#include <gtest/gtest.h>

#include <regex>

namespace {

std::string People(int count) {
    std::string lines;
    for (int index = 0; index < count; ++index)
        lines += R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})"
                 "\n";
    return lines;
}

Surroundings AtATerminal() {
    Surroundings surroundings;
    surroundings.errorTerminal = true;
    return surroundings;
}

const Arguments day{"--topic", "Personal Day", "--today", "2026-11-16"};

/// What a terminal shows in the end after these bytes, line by line.
std::vector<std::string> Screen(const std::string &bytes) {
    std::vector<std::string> lines{""};
    std::size_t column = 0;
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        if (bytes[index] == '\r') {
            column = 0;
        } else if (bytes[index] == '\n') {
            lines.emplace_back();
            column = 0;
        } else if (bytes.compare(index, 3, "\x1B[K") == 0) { // clears to the end of the line
            lines.back().resize(std::min(column, lines.back().size()));
            index += 2;
        } else {
            EXPECT_GE(static_cast<unsigned char>(bytes[index]), 0x20U);
            lines.back().resize(std::max(column + 1, lines.back().size()), ' ');
            lines.back()[column++] = bytes[index];
        }
    }
    return lines;
}

class ProgressBar : public FolderTest {};

// At least the first person draws it.
TEST_F(ProgressBar, GoesForwardsThroughTheFileAndIsGoneAtTheEnd) {
    const Arguments line = Arguments{"--batch", Make("people", People(2000))} + day;
    const Finished run = RunProgram(line, {}, AtATerminal());
    EXPECT_EQ(run.exitCode, 0);
    const std::regex bar(R"(\r\[(#*)(\.*)\] +([0-9]+) %)");
    std::sregex_iterator at(run.err.begin(), run.err.end(), bar);
    EXPECT_NE(at, std::sregex_iterator()) << run.err;
    int before = 0;
    for (; at != std::sregex_iterator(); ++at) {
        const int percent = std::stoi((*at)[3]);
        EXPECT_GE(percent, before);
        EXPECT_LE(percent, 100);
        // The length of the bar says the same as the number, to the width of one mark.
        const double width = static_cast<double>((*at)[1].length() + (*at)[2].length());
        ASSERT_GT(width, 0);
        EXPECT_NEAR(static_cast<double>((*at)[1].length()) / width, percent / 100.0,
                    1 / width + 0.01);
        before = percent;
    }
    EXPECT_EQ(Screen(run.err), std::vector<std::string>{""});
    EXPECT_EQ(run.err.find('\n'), std::string::npos); // one line that is drawn over
}

// One line is half of a file of two, and the first bar is drawn behind it.
TEST_F(ProgressBar, ShowsTheShareOfTheFileThatIsRead) {
    const Arguments line = Arguments{"--batch", Make("people", People(2))} + day;
    const Finished run = RunProgram(line, {}, AtATerminal());
    EXPECT_NE(run.err.find(" 50 %"), std::string::npos) << run.err;
}

TEST_F(ProgressBar, CountsPeopleWhereThereIsNoSize) {
    const Finished run = RunProgram(Arguments{"--batch", "-"} + day, People(3), AtATerminal());
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_NE(run.err.find("\r1 "), std::string::npos) << run.err;
    EXPECT_EQ(Screen(run.err), std::vector<std::string>{""});
}

TEST_F(ProgressBar, MakesRoomForComplaints) {
    const std::string file = Make("people", People(3) + "{}\n" + People(1) + "{\n");
    const Arguments line = Arguments{"--batch", file} + day;
    const Finished watched = RunProgram(line, {}, AtATerminal());
    EXPECT_EQ(watched.exitCode, 1);
    const std::vector<std::string> screen = Screen(watched.err);
    ASSERT_EQ(screen.size(), 3U);
    EXPECT_TRUE(screen[0].starts_with("orravane-report: line 4:")) << screen[0];
    EXPECT_TRUE(screen[1].starts_with("orravane-report: line 6:")) << screen[1];
    EXPECT_EQ(screen[2], "");
    const Finished unwatched = RunProgram(line);
    EXPECT_EQ(screen[0] + '\n' + screen[1] + '\n', unwatched.err);
    EXPECT_EQ(watched.out, unwatched.out);
}

TEST_F(ProgressBar, IsGoneBeforeTheComplaintThatEndsTheRun) {
    Surroundings full = AtATerminal();
    full.outputFile = "/dev/full";
    const Finished run =
        RunProgram(Arguments{"--batch", Make("people", People(3))} + day, {}, full);
    EXPECT_EQ(run.exitCode, 1);
    const std::vector<std::string> screen = Screen(run.err);
    ASSERT_EQ(screen.size(), 2U);
    EXPECT_TRUE(screen[0].starts_with("orravane-report: standard output")) << screen[0];
    EXPECT_EQ(screen[1], "");
}

TEST_F(ProgressBar, IsDrawnForFilesOfPeopleToo) {
    const Arguments line =
        Arguments{"--batch", Make("people", People(3)), "--output-dir", Path("out")} + day;
    const Finished run = RunProgram(line, {}, AtATerminal());
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_NE(run.err.find(" %"), std::string::npos) << run.err;
    EXPECT_EQ(Screen(run.err), std::vector<std::string>{""});
}

TEST_F(ProgressBar, IsAbsentWithoutATerminal) {
    const std::string file = Make("people", People(300));
    for (const Arguments &line :
         {Arguments{"--batch", file} + day, Arguments{"--batch", file, "--output", Path("o")} + day,
          Arguments{"--batch", file, "--output-dir", Path("d")} + day})
        ExpectGood(RunProgram(line)); // nothing on standard error at all
    ExpectGood(RunProgram(Arguments{"--batch", "-"} + day, People(300)));
}

TEST_F(ProgressBar, IsAbsentWhereThereIsNothingToWaitFor) {
    for (const Arguments &line :
         {ann, Arguments{"--book"}, Arguments{"--help"}, Arguments{"--batch", Make("none", "")}}) {
        const Finished run = RunProgram(line, {}, AtATerminal());
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.err, "");
    }
}

} // namespace
