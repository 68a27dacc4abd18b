#include "tests/support/rtf_reader.h"
#include "tests/tools/batch_lines.h"
#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"

#include <gtest/gtest.h>

#include <algorithm>

using modReadings::Person;

namespace {

constexpr std::chrono::year_month_day today = std::chrono::year(2026) / 11 / 16;

const Person anna{"Anna", {}, "Smith", "December", "29", "1985"};
const Person oak{"Oak", {}, "River", "March", "7", "1990"};
const Person mary{"Mary Ann", "van", "der Wal", "December", "13", "1950"};

const Arguments oneTopic{"--topic", "Personal Day"};

Finished Batch(const std::string &input, const Arguments &more = oneTopic) {
    return RunProgram(BatchOptions(more), input);
}

/// What --format json prints for `person` alone.
std::string Alone(const Person &person, const Arguments &more = {}) {
    Arguments options = PersonOptions(person);
    options.insert(options.end(), {"--today", "2026-11-16", "--format", "json"});
    options.insert(options.end(), more.begin(), more.end());
    const Finished run = RunProgram(options);
    ExpectGood(run);
    return run.out;
}

TEST(Batch, PrintsTheObjectOfEachPersonInTheOrderOfTheLines) {
    const Finished run = Batch(AsJson(anna) + AsJson(oak) + AsJson(mary) + AsJson(anna), {});
    ExpectGood(run);
    EXPECT_EQ(run.out, Alone(anna) + Alone(oak) + Alone(mary) + Alone(anna));
}

TEST(Batch, ReadsTopicsAndDayForAllPeople) {
    const std::vector<std::u16string> captions{u"Essence", comprehensiveReading, u"Personal Day"};
    const Finished run =
        Batch(AsJson(anna) + AsJson(oak), {"--topic", "Essence", "--topic", "Comprehensive Reading",
                                           "--topic", "Personal Day"});
    ExpectGood(run);
    const std::vector<std::string> lines = Lines(run.out);
    ASSERT_EQ(lines.size(), 2U);
    ExpectTopics(ParseObject(lines[0]), captions, ExpectedRuns(anna, today, captions));
    ExpectTopics(ParseObject(lines[1]), captions, ExpectedRuns(oak, today, captions));
    EXPECT_EQ(ParseObject(lines[1])["today"], "2026-11-16");
}

TEST(Batch, MayAskForJsonByName) {
    EXPECT_EQ(Batch(AsJson(anna), {"--format", "json"}).out, Batch(AsJson(anna), {}).out);
}

class BatchFile : public FolderTest {};

TEST_F(BatchFile, IsReadAsStandardInputIs) {
    const std::string people = AsJson(anna) + AsJson(oak);
    const std::string file = Make("Leute – 2026.jsonl", people);
    const Finished run =
        RunProgram({"--batch", file, "--today", "2026-11-16", "--topic", "Personal Day"});
    ExpectGood(run);
    EXPECT_EQ(run.out, Batch(people).out);
    EXPECT_EQ(NamesIn(run.out), (Names{"ANNA SMITH", "OAK RIVER"}));
}

TEST(Batch, WithoutAnyLineHasNothingToPrint) {
    for (const char *input : {"", "\n", "\r\n", "\n \n\t\n", "\xEF\xBB\xBF", "\xEF\xBB\xBF\n"}) {
        const Finished run = Batch(input);
        ExpectGood(run);
        EXPECT_EQ(run.out, "");
    }
}

TEST(Batch, WithAHeaderOnlyHasNothingToPrint) {
    for (const char *input :
         {"first,middle,last,month,day,year", "first,middle,last,month,day,year\r\n\r\n"}) {
        const Finished run = Batch(input);
        ExpectGood(run);
        EXPECT_EQ(run.out, "");
    }
}

// What one person leaves in the slots must not show in the report of the next.
//
// The second to fourth person take none of the branches that the first one took: a name
// without a letter and a birth year to come; a name that ties between planes and whose
// physical share meets no band; gaps of 9 in both bridges.
TEST(Batch, StartsEachPersonFromAFreshStore) {
    const Person signs{"1 1", {}, "- -", "June", "19", "2050"};
    const Person tie{"A B C", {}, "D", "May", "14", "1964"};
    const Person ross{"Ross", {}, "E", "July", "16", "1990"};
    // A and E and E is 11, which stays, against the B of 2.
    const Person gap{"Abe", {}, "E", "January", "1", "1990"};
    const Finished run = Batch(AsJson(anna) + AsJson(signs) + AsJson(anna) + AsJson(tie) +
                                   AsJson(anna) + AsJson(ross) + AsJson(anna) + AsJson(gap),
                               {});
    ExpectGood(run);
    const std::vector<std::string> lines = Lines(run.out);
    ASSERT_EQ(lines.size(), 8U);
    for (const std::size_t index : {2U, 4U, 6U})
        EXPECT_EQ(lines[index], lines[0]);

    const QJsonObject second = ParseObject(lines[1]);
    const auto empty = [](const QJsonObject &report, const char *caption) {
        EXPECT_EQ(RunIn(report, caption, 2), "") << caption;
    };
    EXPECT_EQ(NumberIn(second, "Hidden Passion Number"), "0"); // the 1 wins, which has no value
    empty(second, "Hidden Passion Number");
    EXPECT_EQ(NumberIn(second, "Life Path Periods"), "0"); // a negative age is in no period
    EXPECT_EQ(NumberIn(second, "Destiny / Expressions Number"), "0");
    empty(second, "Destiny / Expressions Number");
    EXPECT_EQ(NumberIn(second, "Balance Number"), "0");
    empty(second, "Balance Number");
    EXPECT_EQ(NumberIn(second, "Essence"), "0");
    empty(second, "Essence");
    EXPECT_EQ(NumberIn(second, "Inner Dreams / Personality Number"), "0");
    empty(second, "Inner Dreams / Personality Number");
    EXPECT_EQ(NumberIn(second, "Soul Urge / Heart's Desire Number"), "0");
    empty(second, "Soul Urge / Heart's Desire Number");
    EXPECT_EQ(NumberIn(second, "Realization / Maturity Number"), "0");
    EXPECT_EQ(RunIn(second, "Realization / Maturity Number", 1), "\r\n\r\n"); // no About
    EXPECT_EQ(NumberIn(second, "Planes Of Expression / Personal Aspects"), "");
    EXPECT_EQ(NumberIn(second, "Karmic Debt Numbers"), "19"); // the day

    // Two blanks and no letter twice: a blank wins.
    const QJsonObject fourth = ParseObject(lines[3]);
    EXPECT_EQ(NumberIn(fourth, "Hidden Passion Number"), "0");
    empty(fourth, "Hidden Passion Number");

    // Shares 0, 20, 80, 0: no band of the physical row holds.
    const QJsonObject sixth = ParseObject(lines[5]);
    EXPECT_EQ(RunIn(sixth, "Planes Of Expression / Personal Aspects", 1),
              "Your Personal Aspects: Mental Ability 0 - Weak \r\nPhysical Ability 20 -  \r\n"
              "Emotional Ability 80 - Strong \r\nIntuitive Ability 0 - Weak\r\n\r\n");

    // Under the 9 stands the reading that the pass chose for the gap of a fresh store, 0.
    const QJsonObject eighth = ParseObject(lines[7]);
    EXPECT_EQ(NumberIn(eighth, "H/P Bridge Number"), "9");
    EXPECT_TRUE(RunIn(eighth, "H/P Bridge Number", 2)
                    .starts_with("People will feel comfortable in your company"));

    EXPECT_EQ(run.out, Alone(anna) + Alone(signs) + Alone(anna) + Alone(tie) + Alone(anna) +
                           Alone(ross) + Alone(anna) + Alone(gap));
}

// Destiny 0 against Life Path 9 is a gap of 9, which has no reading.
TEST(Batch, LeavesNoReadingUnderAGapOfNine) {
    // 9 + 4 + (2030: 5) = 18, digit sum 9.
    const Person nine{"1", {}, "2", "April", "9", "2030"};
    const Finished run = Batch(AsJson(anna) + AsJson(nine), {"--topic", "L/E Bridge Number"});
    ExpectGood(run);
    const std::vector<std::string> lines = Lines(run.out);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_NE(RunIn(ParseObject(lines[0]), "L/E Bridge Number", 2), "");
    EXPECT_EQ(NumberIn(ParseObject(lines[1]), "L/E Bridge Number"), "9");
    EXPECT_EQ(RunIn(ParseObject(lines[1]), "L/E Bridge Number", 2), "");
}

// A wrong person between two others leaves no trace either.
TEST(Batch, StartsFromAFreshStoreBehindAWrongLine) {
    const Finished run =
        Batch(AsJson(anna) + "{}\n" + AsJson({"1", {}, "2", "May", "5", "1990"}) + AsJson(oak), {});
    EXPECT_EQ(run.exitCode, 1);
    const std::vector<std::string> lines = Lines(run.out);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[3] + '\n', Alone(oak));
}

TEST(BatchJson, TakesMembersInAnyOrderAndNumbersAsTexts) {
    const std::string expected = Batch(AsJson(oak)).out;
    for (const char *line :
         {R"({"year":1990,"day":7,"month":3,"last":"River","middle":"","first":"Oak"})",
          R"({"first":"Oak","last":"River","month":"3","day":"7","year":"1990"})",
          R"({"first":"Oak","last":"River","month":"March","day":7,"year":"1990"})",
          R"(  { "first" : "Oak" , "last":"River","month":3,"day":7,"year":1990 }  )",
          R"({"first":"\u004fak","last":"Ri\u0076er","month":3,"day":7,"year":1990})"}) {
        SCOPED_TRACE(line);
        const Finished run = Batch(line);
        ExpectGood(run);
        EXPECT_EQ(run.out, expected);
    }
}

TEST(BatchJson, TakesBlanksInFrontOfALineThatIsNotTheFirst) {
    const Finished run = Batch(AsJson(anna) + " \t" + AsJson(oak));
    ExpectGood(run);
    EXPECT_EQ(NamesIn(run.out), (Names{"ANNA SMITH", "OAK RIVER"}));
}

TEST(BatchJson, TakesEscapesAndCharactersOutsideTheBasicPlane) {
    const Finished run =
        Batch(R"({"first":"A\ud83d\ude00\t","last":"\"\\\/Lee 😀","month":3,"day":7,"year":1990})");
    ExpectGood(run);
    EXPECT_EQ(NamesIn(run.out), (Names{"A😀\t \"\\/LEE 😀"}));
}

TEST(BatchCsv, ReadsTheColumnsOfTheHeader) {
    const std::string expected = Batch(AsJson(mary) + AsJson(oak)).out;
    const Finished run = Batch("first,middle,last,month,day,year\n"
                               "Mary Ann,van,der Wal,December,13,1950\n"
                               "Oak,,River,3,7,1990\n");
    ExpectGood(run);
    EXPECT_EQ(run.out, expected);

    const Finished turned = Batch("year,day,month,last,middle,first\n"
                                  "1950,13,12,der Wal,van,Mary Ann\n"
                                  "1990,7,March,River,,Oak\n");
    ExpectGood(turned);
    EXPECT_EQ(turned.out, expected);
}

TEST(BatchCsv, NeedsNoColumnForTheMiddleName) {
    const Finished run = Batch("first,last,month,day,year\nOak,River,3,7,1990\n");
    ExpectGood(run);
    EXPECT_EQ(run.out, Batch(AsJson(oak)).out);
}

TEST(BatchCsv, TakesAHeaderInQuotes) {
    const Finished run = Batch("\"first\",\"last\",\"month\",\"day\",\"year\"\n"
                               "Oak,River,3,7,1990\n");
    ExpectGood(run);
    EXPECT_EQ(NamesIn(run.out), (Names{"OAK RIVER"}));
}

TEST(BatchCsv, TakesQuotedCommasQuotesAndBlanks) {
    const Finished run = Batch("first,middle,last,month,day,year\n"
                               "\"Ann, Mary\",\"\",\"Lee \"\"Red\"\" Ray\",\"3\",7,1990\n"
                               "Ann  Mary,\" \", Lee ,3,7,1990\n"
                               "\"\"\"Ann\"\"\",\",\"\"B,\",\"O'Neil\",3,7,1990\n");
    ExpectGood(run);
    EXPECT_EQ(NamesIn(run.out),
              (Names{"ANN, MARY LEE \"RED\" RAY", "ANN  MARY LEE", "\"ANN\" ,\"B, O'NEIL"}));
}

TEST(BatchCsv, TakesALineThatBeginsWithABraceForARow) {
    const Finished run = Batch("first,last,month,day,year\n{Ann},Lee,3,7,1990\n");
    ExpectGood(run);
    EXPECT_EQ(NamesIn(run.out), (Names{"{ANN} LEE"}));
}

TEST(BatchCsv, TakesNamesInUtf8) {
    const Finished run =
        Batch("first,last,month,day,year\nZoë,Strauß,3,7,1990\nÅsa 😀,Ōe,3,7,1990\n");
    ExpectGood(run);
    EXPECT_EQ(NamesIn(run.out), (Names{"ZOË STRAUSS", "ÅSA 😀 ŌE"}));
}

/// The same two people in every form that lines may have.
TEST(Batch, TakesLinesInEveryForm) {
    const std::string json1 = R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})";
    const std::string json2 = R"({"first":"Bob","last":"Ray","month":4,"day":8,"year":1991})";
    const std::string header = "first,last,month,day,year";
    const std::string row1 = "Ann,Lee,3,7,1990";
    const std::string row2 = "Bob,Ray,4,8,1991";
    const std::string mark = "\xEF\xBB\xBF";
    const Finished expected = Batch(json1 + '\n' + json2 + '\n');
    ExpectGood(expected);
    ASSERT_EQ(NamesIn(expected.out), (Names{"ANN LEE", "BOB RAY"}));

    const std::vector<std::string> inputs{
        json1 + '\n' + json2,                                 // no line break at the end
        json1 + "\r\n" + json2 + "\r\n",                      //
        json1 + "\r\n" + json2,                               //
        mark + json1 + '\n' + json2 + '\n',                   // a byte order mark
        "\n\n" + json1 + "\n \n\t\n\n" + json2 + "\n\n",      // blank lines
        mark + "\r\n" + json1 + "\r\n\r\n" + json2 + "\r\n",  //
        header + '\n' + row1 + '\n' + row2 + '\n',            //
        header + '\n' + row1 + '\n' + row2,                   //
        header + "\r\n" + row1 + "\r\n" + row2 + "\r\n",      //
        mark + header + '\n' + row1 + '\n' + row2 + '\n',     //
        mark + header + "\r\n" + row1 + "\r\n" + row2,        //
        "\n" + header + "\n\n" + row1 + "\n \n" + row2 + '\n' //
    };
    for (const std::string &input : inputs) {
        SCOPED_TRACE(testing::PrintToString(input));
        const Finished run = Batch(input);
        ExpectGood(run);
        EXPECT_EQ(run.out, expected.out);
    }
}

class OutputFolder : public FolderTest {
protected:
    Finished Write(const std::string &input, const std::string &format,
                   const Arguments &more = {}) const {
        Arguments options = BatchOptions({"--output-dir", Path("people")});
        if (!format.empty())
            options.insert(options.end(), {"--format", format});
        options.insert(options.end(), more.begin(), more.end());
        return RunProgram(options, input);
    }

    /// The files by their order, which is that of the people.
    std::vector<std::pair<std::string, std::string>> People() const {
        const auto files = Files(Path("people"));
        return {files.begin(), files.end()};
    }

    static std::string OnePerson(const Person &person, const std::string &format) {
        Arguments options = PersonOptions(person);
        options.insert(options.end(), {"--today", "2026-11-16", "--format", format});
        return RunProgram(options).out;
    }
};

TEST_F(OutputFolder, GetsOneFileAPerson) {
    for (const std::string format : {"text", "rtf"}) {
        SCOPED_TRACE(format);
        const Finished run = Write(AsJson(anna) + AsJson(oak) + AsJson(mary), format);
        ExpectGood(run);
        EXPECT_EQ(run.out, "");
        auto people = People();
        std::erase_if(people, [&](const auto &file) {
            return !file.first.ends_with(format == "rtf" ? ".rtf" : ".txt");
        });
        ASSERT_EQ(people.size(), 3U);
        EXPECT_EQ(people[0].second, OnePerson(anna, format));
        EXPECT_EQ(people[1].second, OnePerson(oak, format));
        EXPECT_EQ(people[2].second, OnePerson(mary, format));
    }
}

TEST_F(OutputFolder, GetsTextUnlessAnotherFormatIsAskedFor) {
    ExpectGood(Write(AsJson(oak), ""));
    ASSERT_EQ(People().size(), 1U);
    EXPECT_EQ(People()[0].second, OnePerson(oak, "text"));
}

TEST_F(OutputFolder, GetsTheTopicsAskedFor) {
    ExpectGood(Write(AsJson(oak), "rtf", {"--topic", "Comprehensive Reading"}));
    ASSERT_EQ(People().size(), 1U);
    const std::u16string shown = modReadings::RtfReader::Read(People()[0].second).Text();
    const auto runs = ExpectedRuns(oak, today, {comprehensiveReading}).front();
    EXPECT_EQ(Utf8(shown), Utf8(PlainBreaks(TextOf(runs)) + u'\n'));
}

TEST_F(OutputFolder, NamesItsFilesAfterTheLines) {
    // Of the lines 2 to 8, of which 3, 6 and 7 hold no person, one is wrong.
    const Finished run = Write("first,last,month,day,year\nAnn,Lee,3,7,1990\n\nBob,Ray,4,8,1991\n"
                               "Cat,Lee,13,1,1990\n\n\nDee,Lee,5,9,1992\n",
                               "text");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.out, "");
    ExpectOneLine(run.err, {"line 5", "month", "\"13\""});
    const auto people = People();
    ASSERT_EQ(people.size(), 3U);
    for (std::size_t index = 0; index < 3; ++index) {
        const std::string line = std::array{"2", "4", "8"}[index];
        EXPECT_EQ(people[index].first.find_first_of("123456789"),
                  people[index].first.find(line + ".txt"))
            << people[index].first;
    }
    EXPECT_EQ(people[2].second, OnePerson({"Dee", {}, "Lee", "5", "9", "1992"}, "text"));
}

TEST_F(OutputFolder, MayBeThereAlreadyAndKeepsWhatElseItHolds) {
    std::filesystem::create_directory(Path("people"));
    Make("people/notes.txt", "mine");
    ExpectGood(Write(AsJson(anna), "text"));
    EXPECT_EQ(Files(Path("people")).size(), 2U);
    EXPECT_EQ(Read(Path("people/notes.txt")), "mine");
}

TEST_F(OutputFolder, IsMadeWithTheFoldersAboveIt) {
    const Finished run = RunProgram(BatchOptions({"--output-dir", Path("a/b/Zoë")}), AsJson(anna));
    ExpectGood(run);
    EXPECT_EQ(Files(Path("a/b/Zoë")).size(), 1U);
}

TEST_F(OutputFolder, CannotBeAFile) {
    const std::string file = Make("people", "before");
    const Finished run = Write(AsJson(anna), "text");
    ExpectRefused(run, {"--output-dir", Shown(file)});
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"people", "before"}}));
}

TEST_F(OutputFolder, HoldsNoHalfFileWhenTheDiskRunsFull) {
    Surroundings surroundings;
    surroundings.mostBytes = 1000;
    const Finished run = RunProgram(BatchOptions({"--output-dir", Path("people")}),
                                    AsJson(anna) + AsJson(oak), surroundings);
    ExpectFailed(run, {"--output-dir: ", "person-000001.txt: "});
    EXPECT_TRUE(People().empty());
}

TEST_F(OutputFolder, IsNotMadeWhenTheBatchCannotBeRead) {
    const Finished run = RunProgram({"--batch", Path("missing"), "--output-dir", Path("people")});
    ExpectRefused(run, {"--batch", Shown(Path("missing"))});
    EXPECT_TRUE(Files().empty());
}

TEST_F(OutputFolder, IsNotMadeForAHeaderThatCannotBeUsed) {
    const Finished run = Write("first,last,month,day,born\n", "text");
    ExpectRefused(run, {"--batch: line 1:", "\"born\""});
    EXPECT_TRUE(Files().empty());
}

} // namespace
