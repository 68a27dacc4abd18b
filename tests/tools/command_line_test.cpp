#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"
#include "tests/tools/program.h"
#include "version.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

/// A command line that is refused, and what the complaint has to name.
struct Wrong {
    const char *name;
    Arguments arguments;
    std::vector<std::string> parts;
};

void PrintTo(const Wrong &wrong, std::ostream *out) { *out << wrong.name; }

std::string NameOf(const testing::TestParamInfo<Wrong> &info) { return info.param.name; }

const Arguments ann{"--first", "Ann", "--last", "Lee",  "--month", "March",
                    "--day",   "7",   "--year", "1990", "--today", "2026-11-16"};

Arguments operator+(Arguments left, const Arguments &right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

/// Ann without one of her options.
Arguments Without(const std::string &option) {
    Arguments rest = ann;
    const auto place = std::ranges::find(rest, option);
    rest.erase(place, place + 2);
    return rest;
}

/// Ann with another value for one of her options.
Arguments With(const std::string &option, const std::string &value) {
    Arguments changed = ann;
    *(std::ranges::find(changed, option) + 1) = value;
    return changed;
}

class WrongCommandLine : public FolderTest, public testing::WithParamInterface<Wrong> {};

TEST_P(WrongCommandLine, IsRefusedInOneLine) {
    Surroundings here;
    here.folder = Path("");
    ExpectRefused(RunProgram(GetParam().arguments, {}, here), GetParam().parts);
    EXPECT_TRUE(Files().empty());

    // With a file to write to, unless one is named already: it stands as it stood, alone
    // in its folder.
    if (std::ranges::any_of(GetParam().arguments, [](const std::string &argument) {
            return argument.starts_with("--output");
        }))
        return;
    const std::string file = Make("report.txt", "what stood here before");
    ExpectRefused(RunProgram(Arguments{"--output", file} + GetParam().arguments, {}, here),
                  GetParam().parts);
    EXPECT_EQ(Files(),
              (std::map<std::string, std::string>{{"report.txt", "what stood here before"}}));
}

INSTANTIATE_TEST_SUITE_P(
    Missing, WrongCommandLine,
    testing::Values(
        Wrong{"Everything", {}, {"--first"}},
        Wrong{"First", Without("--first"), {"--first", "first name"}},
        Wrong{"Last", Without("--last"), {"--last", "last name"}},
        Wrong{"Month", Without("--month"), {"--month", "1 to 12"}},
        Wrong{"Day", Without("--day"), {"--day", "1 to 31"}},
        Wrong{"Year", Without("--year"), {"--year", "1900 to 2050"}},
        Wrong{"ValueOfFirst", {"--first"}, {"--first", "NAME"}},
        Wrong{"ValueOfMiddle", ann + Arguments{"--middle"}, {"--middle", "NAME"}},
        Wrong{"ValueOfLast", {"--last"}, {"--last", "NAME"}},
        Wrong{"ValueOfMonth", {"--month"}, {"--month", "1 to 12"}},
        Wrong{"ValueOfDay", {"--day"}, {"--day", "1 to 31"}},
        Wrong{"ValueOfYear", {"--year"}, {"--year", "1900 to 2050"}},
        Wrong{"ValueOfToday", {"--today"}, {"--today", "YYYY-MM-DD"}},
        Wrong{"ValueOfTopic", ann + Arguments{"--topic"}, {"--topic", "CAPTION"}},
        Wrong{"ValueOfFormat", ann + Arguments{"--format"}, {"--format", "text", "json", "rtf"}},
        Wrong{"ValueOfOutput", ann + Arguments{"--output"}, {"--output", "FILE"}},
        Wrong{"ValueOfBatch", {"--batch"}, {"--batch", "FILE"}},
        Wrong{"ValueOfOutputDir", {"--batch", "-", "--output-dir"}, {"--output-dir", "DIR"}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Empty, WrongCommandLine,
    testing::Values(
        Wrong{"First", With("--first", ""), {"--first"}},
        Wrong{"Last", With("--last", ""), {"--last"}},
        Wrong{"Month", With("--month", ""), {"--month", "1 to 12"}},
        Wrong{"Day", With("--day", ""), {"--day", "1 to 31"}},
        Wrong{"Year", With("--year", ""), {"--year", "1900 to 2050"}},
        Wrong{"Today", With("--today", ""), {"--today", "YYYY-MM-DD"}},
        Wrong{"Topic", ann + Arguments{"--topic", ""}, {"--topic", "caption"}},
        Wrong{"Format", ann + Arguments{"--format", ""}, {"--format", "text"}},
        Wrong{"Output", ann + Arguments{"--output", ""}, {"--output"}},
        Wrong{"Batch", {"--batch", ""}, {"--batch"}},
        Wrong{"OutputDir", {"--batch", "-", "--output-dir", ""}, {"--output-dir"}},
        Wrong{"FirstAfterAnEqualsSign", Without("--first") + Arguments{"--first="}, {"--first"}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    NotAllowed, WrongCommandLine,
    testing::Values(
        Wrong{"MonthZero", With("--month", "0"), {"--month", "\"0\"", "1 to 12"}},
        Wrong{"MonthThirteen", With("--month", "13"), {"--month", "\"13\"", "1 to 12"}},
        Wrong{"MonthNegative", With("--month", "-1"), {"--month", "\"-1\"", "1 to 12"}},
        Wrong{"MonthWithAPoint", With("--month", "3.0"), {"--month", "\"3.0\"", "1 to 12"}},
        Wrong{"MonthCutShort", With("--month", "Mar"), {"--month", "\"Mar\"", "English"}},
        Wrong{"MonthInGerman", With("--month", "März"), {"--month", "\"März\"", "English"}},
        Wrong{"MonthMisspelt", With("--month", "Marsh"), {"--month", "\"Marsh\"", "English"}},
        Wrong{"DayZero", With("--day", "0"), {"--day", "\"0\"", "1 to 31"}},
        Wrong{"DayThirtyTwo", With("--day", "32"), {"--day", "\"32\"", "1 to 31"}},
        Wrong{"DayNegative", With("--day", "-7"), {"--day", "\"-7\"", "1 to 31"}},
        Wrong{"DayWithAPoint", With("--day", "7.5"), {"--day", "\"7.5\"", "1 to 31"}},
        Wrong{"DayAsAWord", With("--day", "seven"), {"--day", "\"seven\"", "1 to 31"}},
        Wrong{"DayInHexadecimal", With("--day", "0x7"), {"--day", "\"0x7\"", "1 to 31"}},
        Wrong{"DayInOtherDigits", With("--day", "٧"), {"--day", "\"٧\"", "1 to 31"}},
        Wrong{"DayBeyondAnyNumber",
              With("--day", "99999999999999999999"),
              {"--day", "99999999999999999999", "1 to 31"}},
        Wrong{"DayOneAboveTwoToThe32", With("--day", "4294967297"), {"--day", "1 to 31"}},
        Wrong{"Year1899", With("--year", "1899"), {"--year", "\"1899\"", "1900 to 2050"}},
        Wrong{"Year2051", With("--year", "2051"), {"--year", "\"2051\"", "1900 to 2050"}},
        Wrong{"YearOfTwoDigits", With("--year", "90"), {"--year", "\"90\"", "1900 to 2050"}},
        Wrong{"YearWithAnotherNumber",
              With("--year", "1990 1991"),
              {"--year", "\"1990 1991\"", "1900 to 2050"}},
        Wrong{"TopicUnknown",
              ann + Arguments{"--topic", "Lucky Number"},
              {"--topic", "\"Lucky Number\""}},
        Wrong{"TopicInLowerCase",
              ann + Arguments{"--topic", "personal day"},
              {"--topic", "\"personal day\""}},
        Wrong{
            "TopicInUpperCase", ann + Arguments{"--topic", "ESSENCE"}, {"--topic", "\"ESSENCE\""}},
        Wrong{
            "TopicWithABlank", ann + Arguments{"--topic", "Essence "}, {"--topic", "\"Essence \""}},
        Wrong{"TopicSpeltAsItsHeading",
              ann + Arguments{"--topic", "Destiny / Expression Number"},
              {"--topic", "\"Destiny / Expression Number\""}},
        Wrong{"ComprehensiveReadingInLowerCase",
              ann + Arguments{"--topic", "comprehensive reading"},
              {"--topic", "\"comprehensive reading\""}},
        // Nodes of the tree that are no topics.
        Wrong{"TopicThatIsABranch",
              ann + Arguments{"--topic", "Numerology"},
              {"--topic", "\"Numerology\""}},
        Wrong{"TopicThatIsAPage", ann + Arguments{"--topic", "Help"}, {"--topic", "\"Help\""}},
        Wrong{"TopicThatResets", ann + Arguments{"--topic", "Reset"}, {"--topic", "\"Reset\""}},
        Wrong{"OneTopicOfSeveral",
              ann + Arguments{"--topic", "Essence", "--topic", "Essences"},
              {"--topic", "\"Essences\""}},
        Wrong{"Format",
              ann + Arguments{"--format", "html"},
              {"--format", "\"html\"", "text", "json", "rtf"}},
        Wrong{"FormatInUpperCase", ann + Arguments{"--format", "JSON"}, {"--format", "\"JSON\""}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Today, WrongCommandLine,
    testing::Values(
        Wrong{"ThirtiethOfFebruary", With("--today", "2026-02-30"), {"--today", "2026-02-30"}},
        Wrong{"TwentyNinthInAYearWithout", With("--today", "2026-02-29"), {"--today"}},
        Wrong{"NoLeapYearInACentury", With("--today", "2100-02-29"), {"--today"}},
        Wrong{"ThirtyFirstOfApril", With("--today", "2026-04-31"), {"--today"}},
        Wrong{"MonthThirteen", With("--today", "2026-13-01"), {"--today"}},
        Wrong{"MonthZero", With("--today", "2026-00-01"), {"--today"}},
        Wrong{"DayZero", With("--today", "2026-01-00"), {"--today"}},
        Wrong{"OneDigit", With("--today", "2026-1-5"), {"--today", "YYYY-MM-DD"}},
        Wrong{"TwoDigitYear", With("--today", "26-01-05"), {"--today", "YYYY-MM-DD"}},
        Wrong{"OtherOrder", With("--today", "05-01-2026"), {"--today", "YYYY-MM-DD"}},
        Wrong{"Slashes", With("--today", "2026/01/05"), {"--today", "YYYY-MM-DD"}},
        Wrong{"WithATime", With("--today", "2026-01-05T00:00"), {"--today", "YYYY-MM-DD"}},
        Wrong{"ATrailingBlank", With("--today", "2026-01-05 "), {"--today", "YYYY-MM-DD"}},
        Wrong{"ATrailingLineBreak", With("--today", "2026-01-05\n"), {"--today", "YYYY-MM-DD"}},
        Wrong{"AWord", With("--today", "today"), {"--today", "YYYY-MM-DD"}},
        Wrong{"OtherDigits", With("--today", "٢٠٢٦-٠١-٠٥"), {"--today", "YYYY-MM-DD"}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Twice, WrongCommandLine,
    testing::Values(
        Wrong{"First", ann + Arguments{"--first", "Bob"}, {"--first", "once"}},
        Wrong{"FirstTheSame", ann + Arguments{"--first", "Ann"}, {"--first", "once"}},
        Wrong{"Middle", ann + Arguments{"--middle", "A", "--middle", "B"}, {"--middle", "once"}},
        Wrong{"Last", ann + Arguments{"--last", "Ray"}, {"--last", "once"}},
        Wrong{"Month", ann + Arguments{"--month", "4"}, {"--month", "once"}},
        Wrong{"Day", ann + Arguments{"--day", "8"}, {"--day", "once"}},
        Wrong{"Year", ann + Arguments{"--year", "1991"}, {"--year", "once"}},
        Wrong{"Today", ann + Arguments{"--today", "2026-11-17"}, {"--today", "once"}},
        Wrong{"Format",
              ann + Arguments{"--format", "json", "--format", "text"},
              {"--format", "once"}},
        Wrong{"Output", ann + Arguments{"--output", "a", "--output", "b"}, {"--output", "once"}},
        Wrong{"Batch", {"--batch", "-", "--batch", "-"}, {"--batch", "once"}},
        Wrong{"OutputDir",
              {"--batch", "-", "--output-dir", "a", "--output-dir", "b"},
              {"--output-dir", "once"}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Stray, WrongCommandLine,
    testing::Values(Wrong{"UnknownOption", ann + Arguments{"--bogus"}, {"bogus"}},
                    Wrong{"UnknownOptionWithAValue", ann + Arguments{"--bogus=1"}, {"bogus"}},
                    Wrong{"ShortOption", ann + Arguments{"-x"}, {"x"}},
                    Wrong{"OptionInUpperCase", ann + Arguments{"--FORMAT", "json"}, {"FORMAT"}},
                    Wrong{"OptionCutShort", ann + Arguments{"--form", "json"}, {"form"}},
                    Wrong{"Argument", ann + Arguments{"Ann"}, {"Ann"}},
                    Wrong{"ArgumentAlone", {"Ann"}, {"Ann"}},
                    Wrong{"ArgumentBehindTwoDashes", ann + Arguments{"--", "--day"}, {"--day"}},
                    Wrong{"EmptyArgument", ann + Arguments{""}, {"\"\""}},
                    Wrong{"OneDash", ann + Arguments{"-"}, {"-"}},
                    Wrong{"ArgumentWithBook", {"--book", "LifePathText"}, {"LifePathText"}},
                    Wrong{"ValueForBook", {"--book=all"}, {"--book"}},
                    Wrong{"ValueForVersion", {"--version=1"}, {"--version"}},
                    Wrong{"ValueForHelp", {"--help=me"}, {"--help"}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    NotTogether, WrongCommandLine,
    testing::Values(
        Wrong{"BookAndBatch", {"--book", "--batch", "-"}, {"--book", "--batch"}},
        Wrong{"BookAndFirst", {"--book", "--first", "Ann"}, {"--book", "--first"}},
        Wrong{"BookAndMiddle", {"--book", "--middle", "Ann"}, {"--book", "--middle"}},
        Wrong{"BookAndLast", {"--book", "--last", "Lee"}, {"--book", "--last"}},
        Wrong{"BookAndMonth", {"--book", "--month", "3"}, {"--book", "--month"}},
        Wrong{"BookAndDay", {"--book", "--day", "3"}, {"--book", "--day"}},
        Wrong{"BookAndYear", {"--book", "--year", "1990"}, {"--book", "--year"}},
        Wrong{"BookAndToday", {"--book", "--today", "2026-11-16"}, {"--book", "--today"}},
        Wrong{"BookAndTopic", {"--book", "--topic", "Essence"}, {"--book", "--topic"}},
        Wrong{"BookAndRtf", {"--book", "--format", "rtf"}, {"--format", "rtf", "--book"}},
        Wrong{"BookAndOutputDir", {"--book", "--output-dir", "d"}, {"--output-dir"}},
        Wrong{"BatchAndFirst", {"--batch", "-", "--first", "Ann"}, {"--batch", "--first"}},
        Wrong{"BatchAndMiddle", {"--batch", "-", "--middle", "Ann"}, {"--batch", "--middle"}},
        Wrong{"BatchAndLast", {"--batch", "-", "--last", "Lee"}, {"--batch", "--last"}},
        Wrong{"BatchAndMonth", {"--batch", "-", "--month", "3"}, {"--batch", "--month"}},
        Wrong{"BatchAndDay", {"--batch", "-", "--day", "3"}, {"--batch", "--day"}},
        Wrong{"BatchAndYear", {"--batch", "-", "--year", "1990"}, {"--batch", "--year"}},
        Wrong{"BatchAndTextOnOneOutput",
              {"--batch", "-", "--format", "text"},
              {"--format", "--batch", "--output-dir"}},
        Wrong{"BatchAndRtfOnOneOutput",
              {"--batch", "-", "--format", "rtf"},
              {"--format", "--batch", "--output-dir"}},
        Wrong{"OutputDirAndJson",
              {"--batch", "-", "--output-dir", "d", "--format", "json"},
              {"--format", "--output-dir", "text", "rtf"}},
        Wrong{"OutputDirAndOutput",
              {"--batch", "-", "--output-dir", "d", "--output", "f"},
              {"--output", "--output-dir"}},
        Wrong{"OutputDirAndAPerson",
              ann + Arguments{"--output-dir", "d"},
              {"--output-dir", "--batch"}}),
    NameOf);

// What is quoted in a complaint must not break it into two lines or steer a terminal.
INSTANTIATE_TEST_SUITE_P(
    WithControlCharacters, WrongCommandLine,
    testing::Values(
        Wrong{"Month", With("--month", "Ma\nrch"), {"--month", "English"}},
        Wrong{"MonthWithACarriageReturn", With("--month", "3\r"), {"--month", "English"}},
        Wrong{"MonthWithAnEscape", With("--month", "\x1B[31mMay"), {"--month", "English"}},
        Wrong{"Day", With("--day", "7\n"), {"--day", "1 to 31"}},
        Wrong{"Year", With("--year", "19\n90"), {"--year", "1900 to 2050"}},
        Wrong{"Today", With("--today", "2026\n"), {"--today", "YYYY-MM-DD"}},
        Wrong{"Topic", ann + Arguments{"--topic", "Ess\nence"}, {"--topic"}},
        Wrong{"Format", ann + Arguments{"--format", "te\nxt"}, {"--format"}},
        Wrong{"UnknownOption", ann + Arguments{"--bo\ngus"}, {"gus"}},
        Wrong{"Argument", ann + Arguments{"A\nnn"}, {"nn"}},
        Wrong{"Batch", {"--batch", "no\nsuch file"}, {"--batch"}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    NotUtf8, WrongCommandLine,
    testing::Values(
        Wrong{"First", With("--first", "A\xFF"), {"--first", "UTF-8"}},
        Wrong{"Middle", ann + Arguments{"--middle=\xC3"}, {"--middle", "UTF-8"}},
        Wrong{"LastInLatin1", With("--last", "Wei\xDF"), {"--last", "UTF-8"}},
        Wrong{"Month", With("--month", "M\xE4rz"), {"--month", "UTF-8"}},
        Wrong{"Topic", ann + Arguments{"--topic", "\xFF"}, {"--topic", "UTF-8"}},
        Wrong{"Batch", {"--batch", "people\xFF"}, {"--batch", "UTF-8"}},
        Wrong{"OutputDir", {"--batch", "-", "--output-dir", "\xFF"}, {"--output-dir", "UTF-8"}},
        Wrong{"Output", ann + Arguments{"--output", "report\xFF"}, {"--output", "UTF-8"}},
        Wrong{"Argument", ann + Arguments{"\xFF"}, {"UTF-8"}},
        Wrong{"UnknownOption", ann + Arguments{"--\xFF"}, {"UTF-8"}}),
    NameOf);

// However long the text, the line about it is short.
TEST(CommandLine, IsQuotedNoLongerThanAnExcerpt) {
    const std::string much(100'000, 'x');
    const std::string shown = std::string(37, 'x') + "..." + std::string(20, 'x');
    for (const Arguments &line :
         {With("--month", much), With("--day", much), With("--year", much), With("--today", much),
          ann + Arguments{"--topic", much}, ann + Arguments{"--format", much},
          ann + Arguments{"--" + much}, ann + Arguments{"--" + much + "=1"}, ann + Arguments{much},
          Arguments{"--batch", much}}) {
        const Finished run = RunProgram(line);
        ExpectRefused(run, {shown});
        EXPECT_LT(run.err.size(), 250U);
    }
    ExpectFailed(RunProgram(ann + Arguments{"--output", much}), {"--output: " + shown + ": "});
    ExpectRefused(RunProgram({"--batch", "-", "--output-dir", much},
                             R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})"),
                  {"--output-dir", shown});
}

TEST(CommandLine, TakesValuesBehindAnEqualsSign) {
    const Finished apart = RunProgram(ann + Arguments{"--topic", "Essence"});
    ExpectGood(apart);
    const Finished joined = RunProgram({"--first=Ann", "--last=Lee", "--month=March", "--day=7",
                                        "--year=1990", "--today=2026-11-16", "--topic=Essence"});
    ExpectGood(joined);
    EXPECT_EQ(joined.out, apart.out);
    EXPECT_NE(apart.out, "");
}

TEST(CommandLine, TakesOptionsInAnyOrder) {
    const Finished one = RunProgram(ann);
    ExpectGood(one);
    const Finished other = RunProgram({"--today", "2026-11-16", "--year", "1990", "--day", "7",
                                       "--month", "March", "--last", "Lee", "--first", "Ann"});
    ExpectGood(other);
    EXPECT_EQ(other.out, one.out);
}

TEST(CommandLine, TakesTheNextWordAsTheValueEvenWithDashes) {
    const Finished run =
        RunProgram(With("--first", "--last") + Arguments{"--topic", "Essence", "--format", "json"});
    ExpectGood(run);
    EXPECT_TRUE(run.out.starts_with(R"({"first":"--LAST",)")) << run.out;
}

TEST(CommandLine, ReadsMonthsByNameAndByNumber) {
    const std::vector<std::string> months{"January",   "February", "March",    "April",
                                          "May",       "June",     "July",     "August",
                                          "September", "October",  "November", "December"};
    for (std::size_t index = 0; index < months.size(); ++index) {
        SCOPED_TRACE(months[index]);
        const Arguments json{"--topic", "Personal Month", "--format", "json"};
        const Finished named = RunProgram(With("--month", months[index]) + json);
        const Finished numbered = RunProgram(With("--month", std::to_string(index + 1)) + json);
        ExpectGood(named);
        ExpectGood(numbered);
        EXPECT_NE(named.out.find("\"month\":\"" + months[index] + '"'), std::string::npos);
        EXPECT_EQ(named.out, numbered.out);
    }
}

TEST(CommandLine, AllowsTheEndsOfTheRangesAndDaysThatAMonthLacks) {
    for (const Arguments &person :
         {With("--day", "1"), With("--day", "31"), With("--year", "1900"), With("--year", "2050"),
          With("--month", "2") + Arguments{"--middle", ""}}) {
        ExpectGood(RunProgram(person));
    }
    Arguments february = With("--month", "February");
    *(std::ranges::find(february, "--day") + 1) = "31";
    const Finished run = RunProgram(february + Arguments{"--topic", "Birthday Number"});
    ExpectGood(run);
    EXPECT_TRUE(run.out.starts_with("Your BirthDay Number is: 31\n\n")) << run.out;
}

TEST(CommandLine, AllowsTheTwentyNinthOfFebruaryInALeapYear) {
    const Finished run = RunProgram(With("--today", "2024-02-29") +
                                    Arguments{"--topic", "Essence", "--format", "json"});
    ExpectGood(run);
    EXPECT_NE(run.out.find(R"("today":"2024-02-29")"), std::string::npos);
}

TEST(CommandLine, HelpTellsEveryOption) {
    const Finished run = RunProgram({"--help"});
    ExpectGood(run);
    for (const char *option :
         {"--first", "--middle", "--last", "--month", "--day", "--year", "--today", "--topic",
          "--format", "--output", "--book", "--batch", "--output-dir", "--help", "--version"})
        EXPECT_NE(run.out.find(option), std::string::npos) << option;
    for (const char *allowed : {"1 to 12", "1 to 31", "1900 to 2050", "YYYY-MM-DD", "text", "json",
                                "rtf", "orravane-report"})
        EXPECT_NE(run.out.find(allowed), std::string::npos) << allowed;
    EXPECT_TRUE(run.out.ends_with('\n'));
    EXPECT_EQ(run.out.find('\r'), std::string::npos);
}

TEST(CommandLine, HelpComesBeforeWhatElseIsMissingOrWrong) {
    const Finished help = RunProgram({"--help"});
    for (const Arguments &line :
         {Arguments{"--help", "--month", "13"}, Arguments{"--month", "13", "--help"},
          Arguments{"--help", "Ann"}, Arguments{"--book", "--batch", "-", "--help"}}) {
        const Finished run = RunProgram(line);
        ExpectGood(run);
        EXPECT_EQ(run.out, help.out);
    }
}

TEST(CommandLine, VersionIsOneLine) {
    const Finished run = RunProgram({"--version"});
    ExpectGood(run);
    EXPECT_EQ(run.out, "orravane-report " + std::string(orravaneVersion) + '\n');
}

TEST(CommandLine, ReadsNothingFromStandardInputForOnePerson) {
    // A folder as standard input cannot be read, so any attempt would show.
    Surroundings surroundings;
    surroundings.inputFile = "/";
    const Finished run = RunProgram(ann, {}, surroundings);
    ExpectGood(run);
    EXPECT_EQ(run.out, RunProgram(ann).out);
}

} // namespace
