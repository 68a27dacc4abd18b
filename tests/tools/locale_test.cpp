// The same bytes under every locale: the program speaks English and UTF-8 wherever it runs.

#include "tests/tools/batch_lines.h"
#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <cwctype>

#include <langinfo.h>

namespace {

Arguments Named(const std::string &first, const std::string &last, const std::string &format) {
    return {
        "--first", first,        "--last",  last,      "--month",  "May",
        "--day",   "7",          "--year",  "1990",    "--format", format,
        "--today", "2026-11-16", "--topic", "Essence", "--topic",  "Destiny / Expressions Number"};
}

class Locales : public FolderTest {
protected:
    using Environment = std::map<std::string, std::optional<std::string>>;

    static Environment Under(const std::optional<std::string> &all,
                             const std::optional<std::string> &lang) {
        return {{"LC_ALL", all},     {"LANG", lang},   {"LC_CTYPE", {}},    {"LC_NUMERIC", {}},
                {"LC_MESSAGES", {}}, {"LANGUAGE", {}}, {"LOCPATH", LOCALES}};
    }

    /// Runs under each locale, and expects the same of all of them.
    Finished Everywhere(const Arguments &arguments, std::string_view input = {},
                        Surroundings surroundings = {}) const {
        surroundings.environment = Under("C.UTF-8", {});
        const Finished first = RunProgram(arguments, input, surroundings);
        for (const Environment &environment :
             {Under({}, "C"), Under("C", {}), Under("POSIX", "de_DE.UTF-8"), Under({}, {}),
              Under("", ""), Under("de_DE.UTF-8", "C"), Under({}, "de_DE.UTF-8"),
              Under("tr_TR.UTF-8", {}), Under("xx_XX.UTF-8", {})}) {
            surroundings.environment = environment;
            SCOPED_TRACE("LC_ALL=" + environment.at("LC_ALL").value_or("(none)") +
                         " LANG=" + environment.at("LANG").value_or("(none)"));
            const Finished run = RunProgram(arguments, input, surroundings);
            EXPECT_EQ(run.exitCode, first.exitCode);
            EXPECT_EQ(run.out, first.out);
            EXPECT_EQ(run.err, first.err);
        }
        return first;
    }
};

// What the other tests rest on: the locales are there and differ from the plain one.
TEST_F(Locales, AreReal) {
    setenv("LOCPATH", LOCALES, 1);
    const bool german = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    EXPECT_STREQ(nl_langinfo(RADIXCHAR), ",");
    EXPECT_STREQ(nl_langinfo(MON_3), "März");
    const bool turkish = std::setlocale(LC_ALL, "tr_TR.UTF-8") != nullptr;
    EXPECT_EQ(std::towupper(L'i'), static_cast<std::wint_t>(L'İ'));
    std::setlocale(LC_ALL, "C");
    unsetenv("LOCPATH");
    EXPECT_TRUE(german);
    EXPECT_TRUE(turkish);
}

TEST_F(Locales, DoNotChangeAReport) {
    for (const char *format : {"text", "json", "rtf"}) {
        const Finished run = Everywhere(Named("Ilias Zoë", "Strauß 😀", format));
        ExpectGood(run);
        EXPECT_NE(run.out, "");
    }
}

// I L I A S Z O of values 9 3 9 1 1 8 6 is 37, S T R A U S S of 1 2 9 1 3 1 1 is 18: 55.
TEST_F(Locales, DoNotChangeTheUpperCaseOfANameOrItsNumber) {
    const Finished run = Everywhere(Named("ilias zoë", "strauß 😀", "json"));
    ExpectGood(run);
    const QJsonObject report = ParseObject(run.out);
    EXPECT_EQ(report["first"], "ILIAS ZOË"); // no dotted capital
    EXPECT_EQ(report["last"], "STRAUSS 😀");
    EXPECT_EQ(NumberIn(report, "Destiny / Expressions Number"), "1"); // 55, 10, 1
}

TEST_F(Locales, DoNotChangeTheNamesOfMonths) {
    for (const char *month : {"März", "Mai", "Dezember", "Mart"}) {
        Arguments line = Named("Ann", "Lee", "text");
        line[5] = month;
        ExpectRefused(Everywhere(line), {"--month", "\"" + std::string(month) + "\"", "English"});
    }
    Arguments line = Named("Ann", "Lee", "json");
    line[5] = "March";
    EXPECT_EQ(ParseObject(Everywhere(line).out)["month"], "March");
}

TEST_F(Locales, DoNotChangeComplaints) {
    ExpectRefused(Everywhere({"--größe"}), {"größe"});
    ExpectRefused(Everywhere({"Ännchen"}), {"Ännchen"});
    ExpectRefused(Everywhere({"--batch", Path("fehlt ä")}),
                  {"--batch", "fehlt ä", "No such file or directory"});
    Surroundings full;
    full.outputFile = "/dev/full";
    ExpectFailed(Everywhere(Named("Ann", "Lee", "text"), {}, full), {"No space left on device"});
}

TEST_F(Locales, DoNotChangeHelpVersionOrBook) {
    ExpectGood(Everywhere({"--help"}));
    ExpectGood(Everywhere({"--version"}));
    ExpectGood(Everywhere({"--book"}));
    ExpectGood(Everywhere({"--book", "--format", "json"}));
}

TEST_F(Locales, DoNotChangeABatch) {
    const Finished run = Everywhere(
        BatchOptions(), "first,last,month,day,year\nZoë,Strauß,May,7,1990\n"
                        "Åsa 😀,ilgın,5,7,1990\nAnn,Lee,Mai,7,1990\nA\xFF,Lee,5,7,1990\n");
    EXPECT_EQ(run.exitCode, 1);
    // A dotless i becomes a plain capital, which counts.
    EXPECT_EQ(NamesIn(run.out), (Names{"ZOË STRAUSS", "ÅSA 😀 ILGIN", "!", "!"}));
    EXPECT_EQ(Lines(run.err).size(), 2U);
}

TEST_F(Locales, DoNotChangeTheNamesOfFiles) {
    for (const char *locale : {"C", "de_DE.UTF-8"}) {
        Surroundings surroundings;
        surroundings.environment = Under(locale, {});
        const std::string file = Path("Übersicht 😀 " + std::string(locale) + ".txt");
        Arguments line = Named("Ann", "Lee", "text");
        line.insert(line.end(), {"--output", file});
        ExpectGood(RunProgram(line, {}, surroundings));
        EXPECT_EQ(Read(file), RunProgram(Named("Ann", "Lee", "text")).out);
    }
}

} // namespace
