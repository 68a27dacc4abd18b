#include "tools/batch.h"

#include "core/clock.h"
#include "report/person.h"
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
        options.batchFile = QString::fromStdString(Path("people"));
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

// People between others whose slots are full, behind a wrong line too.
TEST_F(Batch, AnswersEachPersonAsIfAlone) {
    Options options = ToOneFile();
    options.topics = AllCaptions();
    const Person signs{"1 1", {}, "- -", "June", "19", "2050"};
    const Answers answers =
        Run("first,middle,last,month,day,year\nMary Ann,van,der Wal,December,13,1950\n"
            "1 1,,- -,June,19,2050\nAnna,,Smith,12,29,1985\nAnn,,Lee,3,7\n1 1,,- -,June,19,2050\n",
            options);
    EXPECT_EQ(answers.code, ExitCode::Failed);
    const std::string alone = Alone(signs, Format::Json, options.topics);
    EXPECT_EQ(answers.out, Alone(mary, Format::Json, options.topics) + alone +
                               Alone(anna, Format::Json, options.topics) +
                               ErrorAsJson(5, "5 fields where the header has 6") + alone);
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
    const std::string expected = Alone(annLee, Format::Json) + Alone(bobRay, Format::Json);
    for (const std::string &input : {
             ann + bob,                                              //
             ann + bob.substr(0, bob.size() - 1),                    // no line break at the end
             ann + " \t" + bob,                                      //
             "  " + ann + bob,                                       //
             mark + ann + bob,                                       // a byte order mark
             "\n\n" + ann + "\n \n\t\n\n" + bob + "\n\n",            // blank lines
             header + '\n' + row1 + '\n' + row2 + '\n',              //
             header + '\n' + row1 + '\n' + row2,                     //
             header + "\r\n" + row1 + "\r\n" + row2 + "\r\n",        //
             mark + header + "\r\n" + row1 + "\r\n" + row2,          //
             mark + "\r\n" + header + "\n\n" + row1 + "\n \n" + row2 //
         }) {
        SCOPED_TRACE(testing::PrintToString(input));
        const Answers answers = Run(input);
        EXPECT_EQ(answers.code, ExitCode::Ok);
        EXPECT_EQ(answers.out, expected);
        EXPECT_EQ(answers.err, "");
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
        EXPECT_EQ(answers.code, ExitCode::Failed);
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
        const std::string input = blank + "first,middle,last,month,day,born\nAnn,,Lee,3,7,1990\n";
        for (const Options &options : {ToOneFile(), ToAFolder()}) {
            Make("answers", "before");
            const std::string line = RefusalOf([&] { Run(input, options); });
            ExpectLine(line, {blank.empty() ? "--batch: line 1: " : "--batch: line 3: ", "born"});
            EXPECT_EQ(Files(), (FileMap{{"people", input}, {"answers", "before"}}));
        }
    }
}

TEST_F(Batch, IsRefusedWhereThereIsNoFileToRead) {
    Make("people", "");
    std::filesystem::create_directory(Path("folder"));
    const FileMap before = Files();
    for (const auto &[name, reason] : {std::pair("missing\nä", "No such file"),
                                       {"folder", "directory"},
                                       {"people/below", "Not a directory"}}) {
        for (Options options : {ToOneFile(), ToAFolder()}) {
            options.batchFile = QString::fromStdString(Path(name));
            const std::string shown = OneLine(Excerpt(options.batchFile));
            ExpectLine(RefusalOf([&] { RunBatch(options); }),
                       {"--batch: the file \"" + shown + "\" cannot be read (", reason});
        }
    }
    EXPECT_EQ(Files(), before);
}

TEST_F(Batch, IntoAFolderMakesAFileAPersonNamedAfterTheLine) {
    const std::string input = "first,middle,last,month,day,year\nAnna,,Smith,12,29,1985\n\n"
                              "Mary Ann,van,der Wal,12,13,1950\nCat,,Lee,13,1,1990\n";
    std::filesystem::create_directory(Path("people.d"));
    Make("people.d/notes.txt", "mine");
    Make("people.d/person-000002.txt", "from the last time");
    for (const Format format : {Format::Text, Format::Rtf}) {
        const Answers answers = Run(input, ToAFolder(format));
        EXPECT_EQ(answers.code, ExitCode::Failed);
        ExpectOneLine(answers.err, {"line 5: month: \"13\""});
    }
    EXPECT_EQ(Files(Path("people.d")), (FileMap{{"notes.txt", "mine"},
                                                {"person-000002.txt", Alone(anna, Format::Text)},
                                                {"person-000004.txt", Alone(mary, Format::Text)},
                                                {"person-000002.rtf", Alone(anna, Format::Rtf)},
                                                {"person-000004.rtf", Alone(mary, Format::Rtf)}}));
}

TEST_F(Batch, MakesTheFolderWithThoseAboveIt) {
    Options options = ToAFolder();
    options.outputDir = QString::fromStdString(Path("a/b/Zoë"));
    Run(annLine, options);
    EXPECT_EQ(Files(Path("a/b/Zoë")).size(), 1U);
}

TEST_F(Batch, IsRefusedWhereTheFolderCannotBeMade) {
    Make("people.d", "before");
    ExpectLine(RefusalOf([&] { Run(annLine, ToAFolder()); }),
               {"--output-dir: the folder \"" + Shown(Path("people.d")) + "\" cannot be made"});
    EXPECT_EQ(Read(Path("people.d")), "before");
}

} // namespace
