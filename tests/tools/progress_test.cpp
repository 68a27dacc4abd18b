// The bar on standard error: there for a person at a terminal, absent for everything else.

#include "tests/tools/batch_answers.h"
#include "tests/tools/folder_test.h"
#include "tests/tools/program.h"
#include "tools/progress.h"

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
    surroundings.environment["TERM"] = "xterm";
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

TEST(ProgressLine, HasTheShareThePeopleTheTimeLeftAndTheRate) {
    // A quarter is done after 25 seconds, so 75 are left; 50,000 lines in 25 seconds are
    // 2,000 a second, wrong ones too, and those are no people.
    const BatchCount quarter{250, 49'990, 10};
    EXPECT_EQ(
        ProgressLine(quarter, 1000, 25, 200),
        "[##########..............................]  25 %  49,990 people  1:15 left  2,000/s  "
        "10 wrong lines");
    EXPECT_EQ(ProgressLine({1000, 1, 1}, 1000, 0.4, 200),
              "[########################################] 100 %  1 person  1 wrong line");
    EXPECT_EQ(ProgressLine({0, 0, 0}, 1000, 5, 200),
              "[........................................]   0 %  0 people  0/s");
    // 1 of 3662 bytes in a second leaves 3661 seconds.
    EXPECT_NE(ProgressLine({1, 3, 0}, 3662, 1, 200).find("1:01:01 left"), std::string::npos);
}

TEST(ProgressLine, HasNoBarAndNoTimeLeftWithoutASize) {
    EXPECT_EQ(ProgressLine({500, 1234, 0}, 0, 2, 200), "1,234 people  617/s");
    EXPECT_EQ(ProgressLine({500, 2, 0}, 0, 0, 200), "2 people");
}

// The last column stays free.
TEST(ProgressLine, FitsAnyWidth) {
    const BatchCount count{250, 49'990, 10};
    for (int columns = 0; columns < 200; ++columns)
        EXPECT_LT(ProgressLine(count, 1000, 25, columns).size(),
                  static_cast<std::size_t>(std::max(columns, 1)))
            << columns;
    EXPECT_EQ(ProgressLine(count, 1000, 25, 5), "");
    EXPECT_EQ(ProgressLine(count, 1000, 25, 41), " 25 %  49,990 people  1:15 left  2,000/s");
    EXPECT_EQ(ProgressLine(count, 1000, 25, 80),
              "[#####...............]  25 %  49,990 people  1:15 left  2,000/s  10 wrong lines");
}

TEST(SummaryLine, CountsPeopleAndWrongLines) {
    EXPECT_EQ(SummaryLine({9, 49'990, 10}, 25),
              "49,990 people, 10 wrong lines, 25.0 s, 2,000 a second");
    EXPECT_EQ(SummaryLine({9, 1, 1}, 0.04), "1 person, 1 wrong line, 0.0 s");
    EXPECT_EQ(SummaryLine({9, 7322, 0}, 3661), "7,322 people, 0 wrong lines, 1:01:01, 2 a second");
    // Few in a second get a digit more: 12 in 8 seconds, 12 in a minute.
    EXPECT_EQ(SummaryLine({9, 12, 0}, 8), "12 people, 0 wrong lines, 8.0 s, 1.5 a second");
    EXPECT_EQ(SummaryLine({9, 12, 0}, 60), "12 people, 0 wrong lines, 1:00, 0.2 a second");
}

class ProgressBar : public FolderTest {};

void ExpectSummary(const std::string &line, const std::string &counts) {
    EXPECT_TRUE(std::regex_match(
        line, std::regex("orravane-report: " + counts + R"(, [0-9.]+ s(, [0-9.,]+ a second)?)")))
        << line;
}

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
    const std::vector<std::string> screen = Screen(run.err); // one line that is drawn over
    ASSERT_EQ(screen.size(), 2U);
    ExpectSummary(screen[0], "2,000 people, 0 wrong lines");
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
    EXPECT_NE(run.err.find("\r1 person\x1B[K"), std::string::npos) << run.err;
    const std::vector<std::string> screen = Screen(run.err);
    ASSERT_EQ(screen.size(), 2U);
    ExpectSummary(screen[0], "3 people, 0 wrong lines");
}

TEST_F(ProgressBar, MakesRoomForComplaints) {
    const std::string file = Make("people", People(3) + "{}\n" + People(1) + "{\n");
    const Arguments line = Arguments{"--batch", file} + day;
    const Finished watched = RunProgram(line, {}, AtATerminal());
    EXPECT_EQ(watched.exitCode, 1);
    const std::vector<std::string> screen = Screen(watched.err);
    ASSERT_EQ(screen.size(), 4U);
    EXPECT_TRUE(screen[0].starts_with("orravane-report: line 4:")) << screen[0];
    EXPECT_TRUE(screen[1].starts_with("orravane-report: line 6:")) << screen[1];
    ExpectSummary(screen[2], "4 people, 2 wrong lines");
    const Finished unwatched = RunProgram(line);
    EXPECT_EQ(screen[0] + '\n' + screen[1] + '\n', unwatched.err);
    EXPECT_EQ(watched.out, unwatched.out);
}

TEST_F(ProgressBar, IsGoneBeforeTheComplaintThatEndsTheRun) {
    Surroundings full = AtATerminal();
    full.outputFile = "/dev/full";
    const Finished run =
        RunProgram(Arguments{"--batch", Make("people", People(3))} + day, {}, full);
    EXPECT_EQ(run.exitCode, 3);
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
    EXPECT_EQ(Screen(run.err).size(), 2U); // the summary
}

TEST_F(ProgressBar, IsAbsentWithoutATerminal) {
    const std::string file = Make("people", People(300));
    for (const Arguments &line :
         {Arguments{"--batch", file} + day, Arguments{"--batch", file, "--output", Path("o")} + day,
          Arguments{"--batch", file, "--output-dir", Path("d")} + day})
        ExpectGood(RunProgram(line)); // nothing on standard error at all
    ExpectGood(RunProgram(Arguments{"--batch", "-"} + day, People(300)));
}

// It would show the escape sequences.
TEST_F(ProgressBar, IsAbsentAtATerminalThatObeysNone) {
    const Arguments line = Arguments{"--batch", Make("people", People(3))} + day;
    for (const std::optional<std::string> &kind :
         {std::optional<std::string>("dumb"), std::optional<std::string>("")}) {
        Surroundings surroundings = AtATerminal();
        surroundings.environment["TERM"] = kind;
        ExpectGood(RunProgram(line, {}, surroundings));
    }
}

TEST_F(ProgressBar, IsAbsentWhereThereIsNothingToWaitFor) {
    for (const Arguments &line : {ann, Arguments{"--book"}, Arguments{"--help"}}) {
        const Finished run = RunProgram(line, {}, AtATerminal());
        EXPECT_EQ(run.exitCode, 0);
        EXPECT_EQ(run.err, "");
    }
}

TEST_F(ProgressBar, KeepsToTheWidthOfTheTerminal) {
    Surroundings narrow = AtATerminal();
    narrow.terminalColumns = 24;
    const Arguments line = Arguments{"--batch", Make("people", People(2000))} + day;
    const std::string err = RunProgram(line, {}, narrow).err;
    const std::regex drawn("\r([^\r\x1B]+)\x1B\\[K");
    std::sregex_iterator at(err.begin(), err.end(), drawn);
    EXPECT_NE(at, std::sregex_iterator()) << err;
    for (; at != std::sregex_iterator(); ++at)
        EXPECT_LT((*at)[1].length(), 24) << (*at)[1];
}

TEST_F(ProgressBar, AndSummaryAreAbsentWhereQuietIsAskedFor) {
    const Arguments line = Arguments{"--batch", Make("people", People(3) + "{}\n"), "-q"} + day;
    const Finished run = RunProgram(line, {}, AtATerminal());
    EXPECT_EQ(run.exitCode, 1);
    const std::vector<std::string> screen = Screen(run.err);
    ASSERT_EQ(screen.size(), 2U); // what is wrong is still said
    EXPECT_TRUE(screen[0].starts_with("orravane-report: line 4:")) << screen[0];
    EXPECT_EQ(run.err.find('\r'), std::string::npos);
}

TEST_F(ProgressBar, SummaryIsThereWithoutATerminalWhenAskedFor) {
    const Arguments line = Arguments{"--batch", Make("people", People(3)), "--summary"} + day;
    const Finished run = RunProgram(line);
    EXPECT_EQ(run.exitCode, 0);
    ASSERT_TRUE(run.err.ends_with('\n'));
    ExpectSummary(run.err.substr(0, run.err.size() - 1), "3 people, 0 wrong lines");
    ExpectRefused(RunProgram(line + Arguments{"--quiet"}), {"--quiet", "--summary"});
}

} // namespace
