// The same bytes under every locale: the program speaks English and UTF-8 wherever it runs.

#include "tests/tools/batch_answers.h"
#include "tests/tools/folder_test.h"
#include "tests/tools/program.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <cwctype>

#include <langinfo.h>

namespace {

class Locales : public FolderTest {
protected:
    using Environment = std::map<std::string, std::optional<std::string>>;

    static Environment Under(const std::optional<std::string> &all,
                             const std::optional<std::string> &lang,
                             const std::optional<std::string> &language = {}) {
        return {{"LC_ALL", all},     {"LANG", lang},      {"LC_CTYPE", {}},
                {"LC_NUMERIC", {}},  {"LC_MESSAGES", {}}, {"LANGUAGE", language},
                {"LOCPATH", LOCALES}};
    }

    /// Runs under each locale, and expects the same of all of them.
    static Finished Everywhere(const Arguments &arguments, std::string_view input = {},
                               Surroundings surroundings = {}) {
        surroundings.environment = Under("C.UTF-8", {});
        const Finished first = RunProgram(arguments, input, surroundings);
        for (const Environment &environment :
             {Under("C", {}), Under({}, {}), Under("de_DE.UTF-8", "C", "de"),
              Under({}, "de_DE.UTF-8"), Under("tr_TR.UTF-8", {}), Under("xx_XX.UTF-8", {})}) {
            surroundings.environment = environment;
            SCOPED_TRACE("LC_ALL=" + environment.at("LC_ALL").value_or("(none)") +
                         " LANG=" + environment.at("LANG").value_or("(none)") +
                         " LANGUAGE=" + environment.at("LANGUAGE").value_or("(none)"));
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
    unsetenv("LOCPATH");
    // The language of the system's messages comes before the locale.
    setenv("LANGUAGE", "de", 1);
    std::setlocale(LC_ALL, "C.UTF-8");
    EXPECT_STREQ(std::strerror(ENOENT), "Datei oder Verzeichnis nicht gefunden");
    unsetenv("LANGUAGE");
    std::setlocale(LC_ALL, "C");
    EXPECT_TRUE(german);
    EXPECT_TRUE(turkish);
}

// No dotted capital. I L I A S Z O of values 9 3 9 1 1 8 6 is 37, S T R A U S S of
// 1 2 9 1 3 1 1 is 18: 55, 10, 1.
TEST_F(Locales, DoNotChangeAPerson) {
    for (const char *format : {"json", "text", "rtf"}) {
        const Finished run =
            Everywhere({"--first", "ilias zoë", "--last", "strauß 😀", "--month", "March", "--day",
                        "7", "--year", "1990", "--today", "2026-11-16", "--format", format,
                        "--topic", "Destiny / Expressions Number"});
        ExpectGood(run);
        if (std::string_view(format) != "json")
            continue;
        EXPECT_TRUE(run.out.starts_with(R"({"first":"ILIAS ZOË","middle":"","last":"STRAUSS 😀",)"
                                        R"("month":"March","day":7,"year":1990,)"))
            << run.out;
        EXPECT_NE(run.out.find(R"("number":"1")"), std::string::npos) << run.out;
    }
}

// A dotless i becomes a plain capital, which counts.
TEST_F(Locales, DoNotChangeABatch) {
    const Finished run =
        Everywhere({"--batch", "-", "--today", "2026-11-16"},
                   "first,last,month,day,year\nZoë,Strauß,May,7,1990\nÅsa 😀,ilgın,5,7,1990\n"
                   "Ann,Lee,Mai,7,1990\nA\xFF,Lee,5,7,1990\n");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(NamesIn(run.out), (Names{"ZOË STRAUSS", "ÅSA 😀 ILGIN", "!", "!"}));
    EXPECT_EQ(Lines(run.err).size(), 2U);
}

TEST_F(Locales, DoNotChangeComplaintsHelpOrNamesOfFiles) {
    ExpectGood(Everywhere({"--help"}));
    ExpectRefused(Everywhere({"--größe"}), {"größe"});
    ExpectRefused(Everywhere({"--first", "A", "--last", "B", "--month", "März"}),
                  {"--month: \"März\"", "English"});
    ExpectFailed(Everywhere({"--batch", Path("fehlt ä")}),
                 {"--batch", "fehlt ä", "No such file or directory"});
    Surroundings full;
    full.outputFile = "/dev/full";
    ExpectFailed(Everywhere(ann, {}, full), {"No space left on device"});
    ExpectGood(Everywhere(ann + Arguments{"--output", Path("Übersicht 😀.txt")}));
    EXPECT_EQ(Files(), (FileMap{{"Übersicht 😀.txt", RunProgram(ann).out}}));
}

} // namespace
