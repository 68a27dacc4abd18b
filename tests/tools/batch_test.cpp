#include "tools/batch.h"

#include "core/clock.h"
#include "report/person.h"
#include "report/rtf.h"
#include "tests/tools/batch_answers.h"
#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"

#include <gtest/gtest.h>

using modReadings::Person;

namespace {

const Person anna{"Anna", {}, "Smith", "December", "29", "1985"};
const Person mary{"Mary Ann", "van", "der Wal", "December", "13", "1950"};

constexpr char annLine[] = R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})"
                           "\n";
constexpr char bobLine[] = R"({"first":"Bob","last":"Ray","month":4,"day":8,"year":1991})"
                           "\n";

class Batch : public FolderTest {
protected:
    struct Answers {
        ExitCode code;
        std::string out;
        std::string err;
    };

    /// Options for the people in the file `people`, answered into the file `answers`.
    Options ToOneFile() const {
        Options options;
        options.task = Options::Task::Batch;
        options.format = Format::Json;
        options.topics = {u"Personal Day"};
        options.batchFiles = {QString::fromStdString(Path("people"))};
        options.output = QString::fromStdString(Path("answers"));
        return options;
    }

    /// Options for the same people, each answered into a file of the folder `people.d`.
    Options ToAFolder(Format format = Format::Text) const {
        Options options = ToOneFile();
        options.format = format;
        options.output.clear();
        options.outputDir = QString::fromStdString(Path("people.d"));
        return options;
    }

    /// What becomes of `input`. A refusal of the whole goes through.
    Answers Run(const std::string &input, const Options &options) const {
        Make("people", input);
        testing::internal::CaptureStderr();
        try {
            const ExitCode code = RunBatch(options);
            return {code, options.output.isEmpty() ? "" : Read(Path("answers")),
                    testing::internal::GetCapturedStderr()};
        } catch (const Refusal &) {
            testing::internal::GetCapturedStderr();
            throw;
        }
    }
    Answers Run(const std::string &input) const { return Run(input, ToOneFile()); }

    modReadings::FixedClock clock_{std::chrono::year(2026) / 11 / 16};
};

/// `person` alone in this format.
std::string Alone(const Person &person, Format format,
                  const std::vector<std::u16string_view> &topics = {u"Personal Day"}) {
    return ReadingAs(format, ReadPerson(modReadings::Captured(person), topics));
}

/// The same in JSON as the answer to a line of a batch.
std::string Answer(const Person &person, long long line,
                   const std::vector<std::u16string_view> &topics = {u"Personal Day"}) {
    return ReadingAsJson(ReadPerson(modReadings::Captured(person), topics), {line, {}});
}

// People between others whose slots are full, behind a wrong line too.
TEST_F(Batch, AnswersEachPersonAsIfAlone) {
    Options options = ToOneFile();
    options.topics = AllCaptions();
    const Person signs{"1 1", {}, "- -", "June", "19", "2050"};
    const Answers answers =
        Run("first,middle,last,month,day,year\nMary Ann,van,der Wal,December,13,1950\n"
            "1 1,,- -,June,19,2050\nAnna,,Smith,12,29,1985\nAnn,,Lee,3,7\n1 1,,- -,June,19,2050\n",
            options);
    EXPECT_EQ(answers.code, ExitCode::SomeLinesWrong);
    EXPECT_EQ(answers.out, Answer(mary, 2, options.topics) + Answer(signs, 3, options.topics) +
                               Answer(anna, 4, options.topics) +
                               ErrorAsJson({5, {}}, "5 fields where the header has 6") +
                               Answer(signs, 6, options.topics));
}

TEST_F(Batch, TakesLinesInEveryForm) {
    const std::string ann = annLine;
    const std::string bob = bobLine;
    const std::string header = "first,last,month,day,year";
    const std::string row1 = "Ann,Lee,3,7,1990";
    const std::string row2 = "Bob,Ray,4,8,1991";
    const std::string mark = "\xEF\xBB\xBF";
    const Person annLee{"Ann", {}, "Lee", "March", "7", "1990"};
    const Person bobRay{"Bob", {}, "Ray", "April", "8", "1991"};
    struct Case {
        std::string input;
        int annsLine;
        int bobsLine;
    };
    for (const auto &[input, annsLine, bobsLine] :
         std::vector<Case>{{ann + bob, 1, 2},
                           {ann + bob.substr(0, bob.size() - 1), 1, 2}, // no line break at the end
                           {ann + " \t" + bob, 1, 2},
                           {"  " + ann + bob, 1, 2},
                           {mark + ann + bob, 1, 2},                            // a byte order mark
                           {"\n\n" + ann + "\n \n\t\n\n" + bob + "\n\n", 3, 8}, // blank lines
                           {header + '\n' + row1 + '\n' + row2 + '\n', 2, 3},
                           {header + '\n' + row1 + '\n' + row2, 2, 3},
                           {header + "\r\n" + row1 + "\r\n" + row2 + "\r\n", 2, 3},
                           {mark + header + "\r\n" + row1 + "\r\n" + row2, 2, 3},
                           {mark + "\r\n" + header + "\n\n" + row1 + "\n \n" + row2, 4, 6}}) {
        SCOPED_TRACE(testing::PrintToString(input));
        const Answers answers = Run(input);
        EXPECT_EQ(answers.code, ExitCode::Ok);
        EXPECT_EQ(answers.err, "");
        EXPECT_EQ(answers.out, Answer(annLee, annsLine) + Answer(bobRay, bobsLine));
    }
}

TEST_F(Batch, OfNobodyIsEmpty) {
    for (const char *input : {"", "\n", "\r\n", "\n \n\t\n", "\xEF\xBB\xBF", "\xEF\xBB\xBF\n",
                              "first,last,month,day,year", "first,last,month,day,year\r\n\r\n"}) {
        const Answers answers = Run(input);
        EXPECT_EQ(answers.code, ExitCode::Ok);
        EXPECT_EQ(answers.out, "");
    }
    Run("\n", ToAFolder());
    EXPECT_FALSE(std::filesystem::exists(Path("people.d")));
}

// Lines are counted as an editor counts them: header, blank lines and wrong ones too.
TEST_F(Batch, AnswersAWrongLineInItsPlaceAndGoesOn) {
    struct Case {
        std::string input;
        Names names;
        std::vector<std::pair<int, std::string>> wrong; ///< line, and what is said of it
    };
    const std::string header = "first,middle,last,month,day,year\n";
    for (const auto &[input, names, wrong] : std::vector<Case>{
             {std::string("\n") + "garbage\n" + annLine, {"!", "ANN LEE"}, {{2, "JSON object"}}},
             {std::string("\xEF\xBB\xBF") + "Ann,,Lee,3,7,1990\n" + annLine,
              {"!", "ANN LEE"},
              {{1, "CSV header"}}},
             {std::string(annLine) + "{\"first\":\"Bob\"", {"ANN LEE", "!"}, {{2, "not JSON"}}},
             {std::string(annLine) +
                  R"({"first":"A","last":"L","month":3,"day":"7\n","year":1990})" + "\n{}\n" +
                  bobLine + R"({"first":"1","last":"Lee","month":3,"day":7,"year":1990})",
              {"ANN LEE", "!", "!", "BOB RAY", "!"},
              {{2, "day: \"7\\n\" is not allowed; give a number from 1 to 31"},
               {3, "first is missing"},
               {5, "first has no letter that the Essence can count"}}},
             {"\xEF\xBB\xBF\r\n" + header + "\r\nAnn,,Lee,3,7,1990\r\nAnn,,Lee,3\r\n \r\n" +
                  "A\xFF,,Lee,3,7,1990\r\n" + header + "Bob,,Ray,4,8,1991\nAnn,,Lee,\x1B[3m,7,1990",
              {"ANN LEE", "!", "!", "!", "BOB RAY", "!"},
              {{5, "4 fields"}, {7, "UTF-8"}, {8, "month: \"month\""}, {10, "\"\\x1B[3m\""}}}}) {
        SCOPED_TRACE(testing::PrintToString(input));
        const Answers answers = Run(input);
        EXPECT_EQ(answers.code, ExitCode::SomeLinesWrong);
        EXPECT_EQ(NamesIn(answers.out), names);
        const std::vector<std::string> complaints = Lines(answers.err);
        ASSERT_EQ(complaints.size(), wrong.size());
        std::size_t index = 0;
        for (const std::string &line : Lines(answers.out)) {
            const QJsonObject object = ParseObject(line);
            if (!object.contains("error"))
                continue;
            const auto &[number, part] = wrong[index];
            EXPECT_EQ(object["line"], number);
            const std::string error = object["error"].toString().toStdString();
            ExpectLine(error, {part});
            EXPECT_EQ(complaints[index++],
                      "orravane-report: line " + std::to_string(number) + ": " + error);
        }
    }
}

// Nothing is read behind a header that cannot be used, so nothing is written.
TEST_F(Batch, IsRefusedForAWrongHeader) {
    for (const std::string blank : {"", "\n \n"}) {
        const std::string input = blank + "first,middle,last,month,born,year\nAnn,,Lee,3,7,1990\n";
        for (const Options &options : {ToOneFile(), ToAFolder()}) {
            Make("answers", "before");
            const std::string line = RefusalOf([&] { Run(input, options); });
            ExpectLine(line,
                       {blank.empty() ? "--batch: line 1: " : "--batch: line 3: ", "\"day\""});
            EXPECT_EQ(Files(), (FileMap{{"people", input}, {"answers", "before"}}));
        }
    }
}

TEST_F(Batch, IsRefusedWhereThereIsNoFileToRead) {
    Make("people", "");
    std::filesystem::create_directory(Path("folder"));
    const FileMap before = Files();
#ifdef Q_OS_WIN
    constexpr std::pair<const char *, const char *> cases[] = {{"missing ä", "No such file"},
                                                               {"missing\nä", "Invalid argument"},
                                                               {"folder", "directory"},
                                                               {"people/below", "No such file"}};
#else
    constexpr std::pair<const char *, const char *> cases[] = {{"missing\nä", "No such file"},
                                                               {"folder", "directory"},
                                                               {"people/below", "Not a directory"}};
#endif
    for (const auto &[name, reason] : cases) {
        for (Options options : {ToOneFile(), ToAFolder()}) {
            options.batchFiles = {QString::fromStdString(Path(name))};
            const std::string shown = OneLine(Excerpt(options.batchFiles.constFirst()));
            ExpectLine(RefusalOf([&] { RunBatch(options); }, ExitCode::CannotReadOrWrite),
                       {"--batch: the file \"" + shown + "\" cannot be read (", reason});
        }
    }
    EXPECT_EQ(Files(), before);
}

// An engine that cuts the input says where its piece begins.
TEST_F(Batch, CountsLinesFromTheFirstThatIsGiven) {
    Options options = ToOneFile();
    options.firstLine = 200'001;
    const Person annLee{"Ann", {}, "Lee", "March", "7", "1990"};
    const Answers answers = Run(std::string(annLine) + "\n{}\n" + annLine, options);
    EXPECT_EQ(answers.out,
              Answer(annLee, 200'001) +
                  ErrorAsJson({200'003, {}}, "first is missing or empty; give the first name") +
                  Answer(annLee, 200'004));
    ExpectOneLine(answers.err, {"orravane-report: line 200003: "});
    Options files = ToAFolder();
    files.firstLine = 1'234'567;
    Run(annLine, files);
    EXPECT_EQ(Files(Path("people.d")).begin()->first, "person-1234567.txt");
}

TEST_F(Batch, CarriesFurtherMembersAndColumnsWithAnswersAndErrors) {
    const Answers members =
        Run(R"({"id":7.50,"first":"Ann","last":"Lee","birthdate":"1990-03-07","tags":["a"]})"
            "\n"
            R"({"id":8,"first":"Ann"})"
            "\n");
    EXPECT_NE(
        members.out.find(R"("today":"2026-11-16","line":1,"input":{"id":7.50,"tags":["a"]},)"),
        std::string::npos);
    EXPECT_NE(members.out.find(R"("input":{"id":8}})"), std::string::npos);
    const Answers columns = Run("id,first,last,birthdate\n7,Ann,Lee,1990-03-07\n8,Ann,,x\n");
    EXPECT_NE(columns.out.find(R"("line":2,"input":{"id":"7"},)"), std::string::npos);
    EXPECT_NE(columns.out.find(R"("input":{"id":"8"}})"), std::string::npos);
}

TEST_F(Batch, LosesOneLineToWhatCannotBeRead) {
    const std::string longLine(2'000'000, ' ');
    for (const auto &[wrong, part] : std::vector<std::pair<std::string, std::string>>{
             {longLine, "longer than 1 MB"},
             {R"({"first":")" + longLine, "longer than 1 MB"},
             {std::string(annLine, 30) + '\0' + "x", "NUL"},
             {R"({"first":")" + std::string(3641, 'I') +
                  R"(","last":"Lee","birthdate":"1990-03-07"})",
              "the name is too long"}}) {
        const Answers answers = Run(annLine + wrong + '\n' + bobLine);
        EXPECT_EQ(answers.code, ExitCode::SomeLinesWrong);
        EXPECT_EQ(NamesIn(answers.out), (Names{"ANN LEE", "!", "BOB RAY"}));
        ExpectOneLine(answers.err, {"line 2: ", part});
    }
    const Answers first = Run(longLine + '\n' + bobLine);
    EXPECT_EQ(NamesIn(first.out), (Names{"!", "BOB RAY"}));
    const Answers rows = Run("first,last,birthdate\n\"Ann\nor Anna\",Lee,1990-03-07\n"
                             "Bob,Ray,1991-04-08\n");
    EXPECT_EQ(NamesIn(rows.out), (Names{"!", "BOB RAY"}));
    ExpectOneLine(rows.err, {"line 2: ", "a quotation mark is left open"});
}

TEST_F(Batch, GivesUpAtTheWrongLineThatIsOneTooMany) {
    const std::string input = std::string("{}\n") + annLine + "{}\n" + bobLine + "{}\n";
    Options options = ToOneFile();
    options.maxErrors = 4;
    EXPECT_EQ(NamesIn(Run(input, options).out), (Names{"!", "ANN LEE", "!", "BOB RAY", "!"}));
    options.maxErrors = 2;
    Make("answers", "before");
    ExpectLine(RefusalOf([&] { Run(input, options); }, ExitCode::SomeLinesWrong),
               {"--max-errors: given up at line 3, after 2 wrong lines"});
    EXPECT_EQ(Read(Path("answers")), "before"); // not half of the answers
}

// One message in place of one for each line.
TEST_F(Batch, IsRefusedOnceForAnInputOfAnotherKind) {
    for (const auto &[input, part] : std::vector<std::pair<std::string, std::string>>{
             {"first;last;birthdate\nAnn;Lee;1990-03-07\n", "line 1: the columns"},
             {std::string("\xFF\xFE{\0\n\0", 6), "UTF-16"},
             {"first,last,birthdate," + std::string(1'000'000, 'x') + "\nAnn,Lee,1990-03-07,\n",
              "the header is longer than 1 MB"},
             {"[\n" + std::string(annLine) + "]\n", "JSON array"}}) {
        ExpectLine(RefusalOf([&, input = input] { Run(input); }), {"--batch: line 1: ", part});
        EXPECT_FALSE(std::filesystem::exists(Path("answers")));
    }
}

TEST_F(Batch, IntoAFolderMakesAFileAPersonNamedAfterTheLine) {
    const std::string input = "first,middle,last,month,day,year\nAnna,,Smith,12,29,1985\n\n"
                              "Mary Ann,van,der Wal,12,13,1950\nCat,,Lee,13,1,1990\n";
    std::filesystem::create_directory(Path("people.d"));
    Make("people.d/notes.txt", "mine");
    Make("people.d/person-000002.txt", "from the last time");
    for (const Format format : {Format::Text, Format::Rtf}) {
        const Answers answers = Run(input, ToAFolder(format));
        EXPECT_EQ(answers.code, ExitCode::SomeLinesWrong);
        ExpectOneLine(answers.err, {"line 5: month: \"13\""});
    }
    EXPECT_EQ(Files(Path("people.d")), (FileMap{{"notes.txt", "mine"},
                                                {"person-000002.txt", Alone(anna, Format::Text)},
                                                {"person-000004.txt", Alone(mary, Format::Text)},
                                                {"person-000002.rtf", Alone(anna, Format::Rtf)},
                                                {"person-000004.rtf", Alone(mary, Format::Rtf)}}));
}

TEST_F(Batch, WritesTextAndRtfOfAllIntoOneOutputWithoutWrongLines) {
    const std::string input = "first,middle,last,month,day,year\nAnna,,Smith,12,29,1985\n\n"
                              "Cat,,Lee,13,1,1990\nMary Ann,van,der Wal,12,13,1950\n";
    Options options = ToOneFile();
    options.format = Format::Text;
    const Answers text = Run(input, options);
    EXPECT_EQ(text.code, ExitCode::SomeLinesWrong);
    EXPECT_EQ(text.out, Alone(anna, Format::Text) + '\n' + Alone(mary, Format::Text));
    options.format = Format::Rtf;
    const std::string first = Alone(anna, Format::Rtf);
    const std::string second = Alone(mary, Format::Rtf);
    const std::string start = modReadings::RtfBeginning();
    EXPECT_EQ(Run(input, options).out,
              first.substr(0, first.size() - 3) + "\\b0\\page\r\n" + second.substr(start.size()));
    EXPECT_EQ(Run("", options).out, "");
}

TEST_F(Batch, SaysAboveEachReadingWhoIsRead) {
    Options options = ToOneFile();
    options.format = Format::Text;
    options.head = true;
    const std::string input =
        R"({"first":"An\u001bn","middle":"M","last":"Lee","month":2,"day":31,)"
        R"("year":1990})"
        "\n";
    EXPECT_TRUE(Run(input, options)
                    .out.starts_with("AN\\x1BN M LEE\nBorn February 31, 1990\n"
                                     "Read for November 16, 2026\n\nYour Personal Day is: "));
    options.format = Format::Rtf;
    EXPECT_NE(Run(input, options)
                  .out.find("\\b AN\\\\x1BN M LEE\\b0 \\par\r\nBorn February 31, 1990\\par\r\n"
                            "Read for November 16, 2026\\par\r\n\\par\r\n\\b Your Personal Day"),
              std::string::npos);
}

TEST_F(Batch, IntoAFolderNamesTheFilesAsItIsTold) {
    Options options = ToAFolder();
    options.fileNames = FileNames("{last}-{first}-{line}");
    Run("first,last,birthdate\n../../x,/etc,1990-03-07\n..,a\nb,1990-03-07\n"
        "Zoë,Lee,1990-03-07\n",
        options);
    const FileMap files = Files();
    EXPECT_EQ(files.size(), 4U); // nothing beside the folder
    EXPECT_TRUE(files.contains("people.d/_ETC-.._.._X-000002.txt"));
    EXPECT_TRUE(files.contains("people.d/LEE-ZOË-000005.txt"));
}

TEST_F(Batch, IntoAFolderKeepsWhatIsThereWhenToldSo) {
    std::filesystem::create_directory(Path("people.d"));
    Make("people.d/person-000001.txt", "mine");
    std::error_code noLink; // not everybody may make one on Windows
    std::filesystem::create_symlink("nowhere", Path("people.d/person-000002.txt"), noLink);
    if (noLink)
        Make("people.d/person-000002.txt", "mine too");
    std::filesystem::create_directory(Path("people.d/person-000003.txt"));
    Options options = ToAFolder();
    options.noClobber = true;
    const Answers answers = Run(std::string(annLine) + bobLine + annLine + bobLine, options);
    EXPECT_EQ(answers.code, ExitCode::Ok);
    EXPECT_EQ(Read(Path("people.d/person-000001.txt")), "mine");
    EXPECT_TRUE(noLink || std::filesystem::is_symlink(Path("people.d/person-000002.txt")));
    EXPECT_TRUE(!noLink || Read(Path("people.d/person-000002.txt")) == "mine too");
    EXPECT_TRUE(std::filesystem::is_directory(Path("people.d/person-000003.txt")));
    EXPECT_EQ(Read(Path("people.d/person-000004.txt")),
              Alone({"Bob", {}, "Ray", "April", "8", "1991"}, Format::Text));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Path("people.d")), {}), 4);
}

TEST_F(Batch, TakesTheSeparatorThatIsGiven) {
    Options options = ToOneFile();
    for (const char separator : {';', '|', ' ', '\t', ','}) {
        options.delimiter = separator;
        std::string input = "first;last;birthdate\nAnn;Lee;1990-03-07\n";
        std::ranges::replace(input, ';', separator);
        EXPECT_EQ(NamesIn(Run(input, options).out), Names{"ANN LEE"});
    }
    for (const char *input : {annLine, "first;last;birthdate\n"})
        ExpectLine(RefusalOf([&] { Run(input, options); }), {"--batch: line 1: ", "--delimiter"});
    ExpectLine(RefusalOf([&] { Run("first;last;birthdate\n", ToOneFile()); }),
               {"--delimiter \";\""});
}

TEST_F(Batch, MakesTheFolderWithThoseAboveIt) {
    Options options = ToAFolder();
    options.outputDir = QString::fromStdString(Path("a/b/Zoë"));
    Run(annLine, options);
    EXPECT_EQ(Files(Path("a/b/Zoë")).size(), 1U);
}

TEST_F(Batch, IsRefusedWhereTheFolderCannotBeMade) {
    Make("people.d", "before");
    ExpectLine(RefusalOf([&] { Run(annLine, ToAFolder()); }, ExitCode::CannotReadOrWrite),
               {"--output-dir: the directory \"" + Shown(Path("people.d")) +
                "\" cannot be made (Not a directory)"});
    EXPECT_EQ(Read(Path("people.d")), "before");
}

} // namespace
