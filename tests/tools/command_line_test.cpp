// The whole program: what goes where, and its exit codes.

#include "core/clock.h"
#include "numbers/book.h"
#include "report/person.h"
#include "tests/tools/batch_answers.h"
#include "tests/tools/folder_test.h"
#include "tests/tools/program.h"
#include "tools/formats.h"
#include "tools/help.h"
#include "version.h"

#include <QJsonArray>

#include <gtest/gtest.h>

#include <ctime>

namespace {

/// What is printed for `ann`, who is a person in the options of the same name.
std::string ExpectedOfAnn(Format format, const LineFacts &line = {}) {
    const modReadings::FixedClock clock(std::chrono::year(2026) / 11 / 16);
    const PersonReading reading =
        ReadPerson(modReadings::Captured({"Ann", {}, "Lee", "March", "7", "1990"}), AllCaptions());
    return line.number == 0 ? ReadingAs(format, reading) : ReadingAsJson(reading, line);
}

TEST(CommandLine, PrintsAPersonInEveryFormat) {
    for (const auto &[options, format] : {std::pair(Arguments{}, Format::Text),
                                          {{"--format", "text"}, Format::Text},
                                          {{"--format", "json"}, Format::Json},
                                          {{"--format", "rtf"}, Format::Rtf}}) {
        // A folder as standard input cannot be read, so any attempt would show.
        Surroundings folder;
        folder.inputFile = "/";
        const Finished run = RunProgram(ann + options, {}, folder);
        ExpectGood(run);
        EXPECT_EQ(run.out, ExpectedOfAnn(format));
    }
}

TEST(CommandLine, PrintsTheTopicsAskedForInTheirOrder) {
    const Finished run = RunProgram(ann + Arguments{"--topic", "Soul Urge / Heart's Desire Number",
                                                    "--topic", "Birthday Number"});
    ExpectGood(run);
    EXPECT_TRUE(run.out.starts_with("Your Soul Urge Or Heart's Desire Number is: ")) << run.out;
    EXPECT_NE(run.out.find("\n\nYour BirthDay Number is: 7\n\n"), std::string::npos) << run.out;
}

TEST(CommandLine, PrintsHowTheNumbersComeAbout) {
    const Finished run = RunProgram(ann + Arguments{"--explain", "--topic", "Life Path Number"});
    ExpectGood(run);
    EXPECT_TRUE(run.out.starts_with("ANN LEE\nBorn March 7, 1990\nRead for November 16, 2026\n"));
    EXPECT_TRUE(run.out.ends_with("Life Path Number: 2\n"
                                  "  day of birth      7\n"
                                  "  month of birth    March counts 3\n"
                                  "  year of birth     1990: 1 + 9 + 9 + 0 = 19, 1 + 9 = 10\n"
                                  "  Life Path Number  7 + 3 + 10 = 20, 2 + 0 = 2\n"))
        << run.out;
    const Finished json = RunProgram(ann + Arguments{"--explain", "--format", "json"});
    ExpectGood(json);
    EXPECT_EQ(ParseObject(Lines(json.out).at(0))["topics"].toArray().size(), 22);
}

TEST(CommandLine, TellsOfANameInDecomposedLetters) {
    const Arguments zoe{"--first", "Zoe\u0301",  "--last",  "Lee",
                        "--date",  "1990-03-07", "--topic", "Birthday Number"};
    const Finished run = RunProgram(zoe);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.out.starts_with("Your BirthDay Number is: 7\n"));
    ExpectOneLine(run.err, {"--first: not in composed letters", "--normalize"});
    ExpectGood(RunProgram(zoe + Arguments{"--normalize"}));
}

TEST(CommandLine, PrintsTheBookHelpAndVersion) {
    const auto book = modReadings::Book();
    for (const auto &[arguments, expected] :
         {std::pair(Arguments{"--book"}, BookAsText(book)),
          {{"--book", "--format", "json"}, BookAsJson(book)},
          {{"--version"}, "orravane-report " + std::string(orravaneVersion) + '\n'},
          {{"-V"}, "orravane-report " + std::string(orravaneVersion) + '\n'},
          {{"--list-topics"}, TopicList()},
          {{"--help"}, HelpText()},
          {{"-h"}, HelpText()}}) {
        const Finished run = RunProgram(arguments);
        ExpectGood(run);
        EXPECT_EQ(run.out, expected);
    }
}

TEST(CommandLine, PrintsABatchOfAFileOrOfStandardInput) {
    QTemporaryDir folder;
    const std::string file = folder.filePath("Leute – 2026.jsonl").toStdString();
    const std::string people = "{}\n"
                               R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})";
    std::ofstream(file) << people;
    for (const Arguments &source : {Arguments{"--batch", "-"}, Arguments{"--batch", file}}) {
        const Finished run = RunProgram(source + Arguments{"--today", "2026-11-16"}, people);
        EXPECT_EQ(run.exitCode, 1);
        ExpectOneLine(run.err, {"line 1: first"});
        EXPECT_EQ(run.out, ErrorAsJson({1, {}}, "first is missing or empty; give the first name") +
                               ExpectedOfAnn(Format::Json, {2, {}}));
    }
}

class RefusedCommandLine : public FolderTest {};

TEST_F(RefusedCommandLine, IsOneLineAndLeavesTheOutputAlone) {
    const std::string file = Make("report", "what stood here before");
    const Arguments output{"--output", file};
    for (const auto &[arguments, parts] :
         {std::pair(Arguments{}, std::vector<std::string>{"--first", "first name"}),
          {{"--first", "Ann", "--last", "Lee", "--month", "Ma\nrch"}, {"--month: \"Ma\\nrch\""}},
          {ann + Arguments{"--day", "8"}, {"--day is given more than once"}},
          {ann + Arguments{"--topic", "Essences"}, {"--topic: \"Essences\""}},
          {ann + Arguments{"--größe"}, {"\"--größe\""}},
          {{"--book", "--format", "rtf"}, {"--format"}},
          // The Essence of F would never end; on this day Ann is a year old.
          {{"--first", "Ann", "--last", "F", "--month", "3", "--day", "7", "--year", "2025",
            "--today", "2026-11-16"},
           {"--last", "Essence"}}}) {
        SCOPED_TRACE(testing::PrintToString(arguments));
        ExpectRefused(RunProgram(output + arguments), parts);
        EXPECT_EQ(Files(), (FileMap{{"report", "what stood here before"}}));
    }
    ExpectFailed(RunProgram(output + Arguments{"--batch", Path("missing")}),
                 {"--batch", "No such file or directory"});
    ExpectRefused(RunProgram({}), {"Nothing to do; see --help"});
    ExpectRefused(RunProgram(Arguments{"--batch", "-"} + output, "first,last\n"),
                  {"--batch: line 1: "});
    EXPECT_EQ(Files(), (FileMap{{"report", "what stood here before"}}));
    // The same name is read for the year of birth.
    ExpectGood(RunProgram({"--first", "Ann", "--last", "F", "--month", "3", "--day", "7", "--year",
                           "2025", "--today", "2025-12-31"}));
}

TEST_F(RefusedCommandLine, NeedNotBeUtf8) {
    ExpectRefused(RunShell("\"$0\" --first \"$(printf 'A\\377')\""),
                  {"--first: \"A", "is not UTF-8"});
}

/// The date at `hours` ahead of UTC.
std::string DateAhead(int hours) {
    const std::time_t there = std::time(nullptr) + hours * 3600;
    char text[16];
    std::strftime(text, sizeof text, "%Y-%m-%d", std::gmtime(&there));
    return text;
}

// The two zones are 26 hours apart, so their dates are never the same.
TEST(CommandLine, ReadsForTheLocalDayByDefault) {
    for (const auto &[zone, hours] : {std::pair("EAST-14", 14), std::pair("WEST+12", -12)}) {
        SCOPED_TRACE(zone);
        const Arguments line = Arguments(ann.begin(), ann.end() - 2) +
                               Arguments{"--format", "json", "--topic", "Personal Day"};
        Surroundings surroundings;
        surroundings.environment["TZ"] = zone;
        const std::string before = DateAhead(hours);
        const Finished run = RunProgram(line, {}, surroundings);
        const std::string after = DateAhead(hours); // another day when midnight passed
        ExpectGood(run);
        const std::string day = ParseObject(run.out)["today"].toString().toStdString();
        EXPECT_TRUE(day == before || day == after) << day;
        // The reading is that of the day it names.
        EXPECT_EQ(RunProgram(line + Arguments{"--today", day}).out, run.out);
    }
}

} // namespace
