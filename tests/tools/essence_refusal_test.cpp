// The Essence of a name without a letter that lasts any years never comes to an end, at a
// positive age. The window lets it run; the program refuses the name before it starts.

#include "tests/tools/complaint.h"
#include "tests/tools/expected_report.h"
#include "tests/tools/folder_test.h"
#include "tests/tools/program.h"

#include <gtest/gtest.h>

namespace {

struct Names {
    const char *name;
    std::string first, middle, last;
    const char *option; ///< the one that is to blame
};

void PrintTo(const Names &names, std::ostream *out) { *out << names.name; }

std::string NameOf(const testing::TestParamInfo<Names> &info) { return info.param.name; }

Arguments Born(const Names &names, const std::string &year) {
    return {"--first", names.first,  "--middle", names.middle, "--last",   names.last,
            "--month", "March",      "--day",    "7",          "--year",   year,
            "--today", "2026-11-16", "--topic",  "Essence",    "--format", "json"};
}

class EndlessName : public FolderTest, public testing::WithParamInterface<Names> {};

TEST_P(EndlessName, IsRefusedBeforeItStarts) {
    for (const char *year : {"1900", "1990", "2025"}) { // 2025 is age 1
        SCOPED_TRACE(year);
        ExpectRefused(RunProgram(Born(GetParam(), year)), {GetParam().option, "Essence", "letter"});
    }
}

// The topics asked for do not matter: the pass runs all of them.
TEST_P(EndlessName, IsRefusedForEveryTopicAndFormat) {
    Arguments options = Born(GetParam(), "1990");
    for (const char *format : {"text", "json", "rtf"})
        for (const char *topic : {"Personal Day", "Comprehensive Reading"}) {
            options[15] = topic;
            options[17] = format;
            ExpectRefused(RunProgram(options), {GetParam().option});
        }
}

TEST_P(EndlessName, LeavesTheOutputFileAlone) {
    const std::string file = Make("report.json", "before");
    Arguments options = Born(GetParam(), "1990");
    options.insert(options.end(), {"--output", file});
    ExpectRefused(RunProgram(options), {GetParam().option});
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"report.json", "before"}}));
}

// At age 0 or below the walk is over after one pass, without a letter in force.
TEST_P(EndlessName, IsReadWhenTheBirthYearIsThisOneOrLater) {
    for (const char *year : {"2026", "2027", "2050"}) {
        SCOPED_TRACE(year);
        const Finished run = RunProgram(Born(GetParam(), year));
        ExpectGood(run);
        NumberIn(ParseObject(run.out), "Essence"); // the topic is there
    }
}

INSTANTIATE_TEST_SUITE_P(Names, EndlessName,
                         testing::Values(Names{"FirstOfDigits", "123", "", "Lee", "--first"},
                                         Names{"FirstOfSigns", "-'.", "", "Lee", "--first"},
                                         Names{"FirstOfBlanks", "   ", "", "Lee", "--first"},
                                         Names{"FirstOfAccents", "Éé", "", "Lee", "--first"},
                                         Names{"FirstInAnotherAlphabet", "Анна", "", "Lee",
                                               "--first"},
                                         Names{"FirstOfEmoji", "😀", "", "Lee", "--first"},
                                         Names{"MiddleOfDigits", "Ann", "2", "Lee", "--middle"},
                                         Names{"MiddleOfSigns", "Ann", "- -", "Lee", "--middle"},
                                         Names{"LastOfDigits", "Ann", "", "7", "--last"},
                                         Names{"LastOfBlanks", "Ann", "", "  ", "--last"},
                                         Names{"LastOfASign", "Ann", "", "-", "--last"},
                                         // F lasts no years in a last name.
                                         Names{"LastOfF", "Ann", "", "F", "--last"},
                                         Names{"LastOfLowerCaseF", "Ann", "", "f", "--last"},
                                         Names{"LastOfSeveralF", "Ann", "", "F-f F2", "--last"}),
                         NameOf);

TEST(EssenceRefusal, TellsThatFIsTheExceptionInALastName) {
    ExpectRefused(RunProgram(Born({"", "Ann", "", "F", ""}, "1990")), {"--last", "F"});
}

TEST(EssenceRefusal, NamesTheFirstOfSeveralNames) {
    ExpectRefused(RunProgram(Born({"", "1", "2", "3", ""}, "1990")), {"--first"});
    ExpectRefused(RunProgram(Born({"", "A", "2", "3", ""}, "1990")), {"--middle"});
}

TEST(EssenceRefusal, SparesNamesWithOneCountedLetter) {
    for (const Names &names : {Names{"", "1A", "", "Lee", ""}, Names{"", "F", "", "Lee", ""},
                               Names{"", "Ann", "F", "Lee", ""}, Names{"", "Ann", "", "FA", ""},
                               Names{"", "Ann", "", "Éj", ""}, Names{"", "ß", "", "Lee", ""},
                               Names{"", "Ann", "   ", "Lee", ""}}) {
        SCOPED_TRACE(names.first + '|' + names.middle + '|' + names.last);
        ExpectGood(RunProgram(Born(names, "1990")));
        ExpectGood(RunProgram(Born(names, "1900")));
    }
}

TEST(EssenceRefusal, GivesTheNumbersOfAgesThatNeedNoLetter) {
    const auto number = [](const Names &names, const char *year) {
        const Finished run = RunProgram(Born(names, year));
        ExpectGood(run);
        return NumberIn(ParseObject(run.out), "Essence");
    };
    // Age 0: the F is passed over, O is in force with 6, and A with 1.
    EXPECT_EQ(number({"", "A", "", "Fox", ""}, "2026"), "7");
    EXPECT_EQ(number({"", "A", "", "F", ""}, "2026"), "1");
    EXPECT_EQ(number({"", "1", "2", "3", ""}, "2026"), "0");
    // A negative age takes no letter at all.
    EXPECT_EQ(number({"", "Ann", "", "Lee", ""}, "2027"), "0");
}

TEST(EssenceRefusal, GoesByTheDayItIsReadFor) {
    Arguments options = Born({"", "Ann", "", "F", ""}, "2026");
    ExpectGood(RunProgram(options));
    options[13] = "2027-01-01"; // age 1
    ExpectRefused(RunProgram(options), {"--last"});
    options[13] = "2026-12-31";
    ExpectGood(RunProgram(options));
}

} // namespace
