#include "tools/options.h"

#include "tests/support/expected_report.h"
#include "tests/tools/arguments.h"
#include "tests/tools/complaint.h"

#include <gtest/gtest.h>

#include <algorithm>

using modReadings::ExpectedTopic;
using modReadings::passTopics;

namespace {

/// The options of `arguments`, taken as the program takes them. A refusal goes through.
Options Parsed(const Arguments &arguments) {
    std::vector<const char *> argv{"orravane-report"};
    QStringList words{"orravane-report"};
    for (const std::string &argument : arguments) {
        argv.push_back(argument.c_str());
        words << QString::fromStdString(argument);
    }
    RequireUtf8(static_cast<int>(argv.size()), argv.data());
    return ParseOptions(words);
}

/// Expects that `arguments` are refused in one line with all of `parts`.
void ExpectWrong(const Arguments &arguments, const std::vector<std::string> &parts) {
    SCOPED_TRACE(testing::PrintToString(arguments));
    ExpectLine(RefusalOf([&] { Parsed(arguments); }), parts);
}

TEST(ParseOptions, OfOnePerson) {
    for (const Arguments &arguments :
         {Arguments{"--first", "Ann", "--middle", " M ", "--last=--day", "--month", "March",
                    "--day", "7", "--year", "1990"},
          Arguments{"--year=1990", "--day=7", "--month=March", "--last=--day", "--middle= M ",
                    "--first=Ann"}}) {
        const Options options = Parsed(arguments);
        EXPECT_EQ(options.task, Options::Task::Person);
        EXPECT_EQ(options.person.first, "Ann");
        EXPECT_EQ(options.person.middle, " M ");
        EXPECT_EQ(options.person.last, "--day"); // behind an equals sign anything is a value
        EXPECT_EQ(options.person.month, "March");
        EXPECT_EQ(options.person.day, "7");
        EXPECT_EQ(options.person.year, "1990");
        EXPECT_EQ(options.format, Format::Text);
        EXPECT_FALSE(options.today);
        EXPECT_EQ(options.output, "");
        EXPECT_TRUE(
            std::ranges::equal(options.topics, passTopics, {}, {}, &ExpectedTopic::caption));
    }
}

// What a person's inputs may be is checked where one is read, on the command line or not.
TEST(ParseOptions, LeavesTheInputsOfAPersonUnchecked) {
    EXPECT_EQ(Parsed({"--month", "13"}).person.month, "13");
    EXPECT_EQ(Parsed({"--first", ""}).person.first, "");
    EXPECT_EQ(Parsed({"--date", "13"}).person.date, "13");
}

TEST(ParseOptions, TakesFormatDayTopicsAndFile) {
    const Options options =
        Parsed(ann + Arguments{"--format", "rtf", "--output", "f", "--topic", "Essence", "--topic",
                               "Comprehensive Reading", "--topic", "Essence"});
    EXPECT_EQ(options.format, Format::Rtf);
    EXPECT_EQ(options.today, std::chrono::year(2026) / 11 / 16);
    EXPECT_EQ(options.output, "f");
    EXPECT_EQ(options.topics,
              (std::vector<std::u16string_view>{u"Essence", u"Comprehensive Reading", u"Essence"}));
    EXPECT_EQ(Parsed({"--format", "json"}).format, Format::Json);
    EXPECT_EQ(Parsed({"--format", "text"}).format, Format::Text);
    EXPECT_EQ(Parsed({"--today", "2024-02-29"}).today, std::chrono::year(2024) / 2 / 29);
    for (const ExpectedTopic &topic : passTopics)
        EXPECT_EQ(Parsed({"--topic", ToUtf8(topic.caption)}).topics,
                  std::vector<std::u16string_view>{topic.caption});
}

TEST(ParseOptions, OfABatch) {
    const Options lines = Parsed({"--batch", "-"});
    EXPECT_EQ(lines.task, Options::Task::Batch);
    EXPECT_EQ(lines.batchFiles, QStringList{"-"});
    EXPECT_EQ(lines.format, Format::Json);
    EXPECT_EQ(Parsed({"--batch", "-", "--format", "json"}).format, Format::Json);

    const Options files = Parsed({"--batch", "p.csv", "--output-dir", "d"});
    EXPECT_EQ(files.batchFiles, QStringList{"p.csv"});
    EXPECT_EQ(files.outputDir, "d");
    EXPECT_EQ(files.format, Format::Text);
    EXPECT_EQ(Parsed({"--batch", "-", "--output-dir", "d", "--format", "rtf"}).format, Format::Rtf);
}

TEST(ParseOptions, OfABatchOfSeveralFilesInSeveralProcesses) {
    const Options options =
        Parsed({"--batch", "a.csv", "b.gz", "--jobs", "256", "-", "--delimiter", ";"});
    EXPECT_EQ(options.batchFiles, (QStringList{"a.csv", "b.gz", "-"}));
    EXPECT_EQ(options.jobs, 256);
    EXPECT_EQ(options.delimiter, ';');
    EXPECT_EQ(Parsed({"--batch", "-"}).jobs, 1);
    EXPECT_EQ(Parsed({"--batch", "-"}).delimiter, std::nullopt);
    for (const char *tab : {"tab", "TAB", "\\t", "\t"})
        EXPECT_EQ(Parsed({"--batch", "-", "--delimiter", tab}).delimiter, '\t');
    for (const char *value : {"", "ab", "a", "7", "\"", "\n", "é"})
        ExpectWrong({"--batch", "-", "--delimiter", value}, {"--delimiter: \"", "is not allowed"});
    for (const char *value : {"0", "257", "-1", "two", ""})
        ExpectWrong({"--batch", "-", std::string("--jobs=") + value},
                    {std::string("--jobs: \"") + value + "\"", "a whole number from 1 to 256."});
}

TEST(ParseOptions, OfNumbers) {
    for (const Arguments &task : {ann, Arguments{"--batch", "-"}}) {
        EXPECT_FALSE(Parsed(task).numbers);
        const Options options = Parsed(task + Arguments{"--numbers"});
        EXPECT_TRUE(options.numbers);
        EXPECT_EQ(options.format, Format::Json);
        EXPECT_EQ(Parsed(task + Arguments{"--numbers", "-f", "csv"}).format, Format::Csv);
        EXPECT_EQ(Parsed(task + Arguments{"--numbers", "-f", "tsv"}).format, Format::Tsv);
    }
}

// In a batch the head tells whose reading it is; one person knows.
TEST(ParseOptions, OfTheHead) {
    const Arguments batch{"--batch", "-"};
    EXPECT_FALSE(Parsed(ann).head);
    EXPECT_TRUE(Parsed(ann + Arguments{"--head"}).head);
    EXPECT_TRUE(Parsed(batch + Arguments{"--output-dir", "d"}).head);
    EXPECT_TRUE(Parsed(batch + Arguments{"-f", "rtf"}).head);
    EXPECT_FALSE(Parsed(batch + Arguments{"-f", "rtf", "--no-head"}).head);
    EXPECT_FALSE(Parsed(batch).head);
}

TEST(ParseOptions, OfAnExplanation) {
    EXPECT_FALSE(Parsed({"--batch", "p"}).explain);
    EXPECT_TRUE(Parsed({"--explain"}).explain);
    EXPECT_EQ(Parsed({"--explain"}).format, Format::Text);
    EXPECT_EQ(Parsed({"--explain", "-f", "json"}).format, Format::Json);
    EXPECT_EQ(Parsed({"--batch", "p", "--explain"}).format, Format::Json);
    EXPECT_EQ(Parsed({"--batch", "p", "--explain", "--output-dir", "d"}).format, Format::Text);
    ExpectWrong({"--explain", "-f", "rtf"}, {"--format: \"rtf\" does not go with --explain"});
    ExpectWrong({"--explain", "-f", "csv"}, {"--format: \"csv\" goes with --numbers only"});
    for (const std::string other : {"--numbers", "--head", "--no-head"})
        ExpectWrong({"--explain", other}, {other, "does not go with --explain"});
    ExpectWrong({"--book", "--explain"}, {"--explain does not go with --book"});
}

TEST(ParseOptions, TakesNamesToBeComposed) {
    EXPECT_FALSE(Parsed({"--numbers"}).normalize);
    EXPECT_TRUE(Parsed({"--numbers", "--normalize"}).normalize);
    EXPECT_TRUE(Parsed({"--batch", "p", "--normalize"}).normalize);
    ExpectWrong({"--book", "--normalize"}, {"--normalize does not go with --book"});
}

TEST(ParseOptions, OfTheBookHelpAndVersion) {
    const Options book = Parsed({"--book", "--format", "json", "--output", "f"});
    EXPECT_EQ(book.task, Options::Task::Book);
    EXPECT_EQ(book.format, Format::Json);
    EXPECT_EQ(book.output, "f");
    EXPECT_EQ(Parsed({"--book"}).format, Format::Text);
    EXPECT_EQ(Parsed({"--version"}).task, Options::Task::Version);
}

// They come before what else is missing or wrong.
TEST(ParseOptions, OfHelpVersionAndTopicsWhateverElseIsThere) {
    for (const Arguments &arguments :
         {Arguments{"--help"}, Arguments{"-h"}, Arguments{"--format", "html", "--help"},
          Arguments{"--help", "Ann"}, Arguments{"--book", "--batch", "-", "--help"}})
        EXPECT_EQ(Parsed(arguments).task, Options::Task::Help);
    EXPECT_EQ(Parsed({"-V", "--topic", "none"}).task, Options::Task::Version);
    EXPECT_EQ(Parsed({"--list-topics", "Ann"}).task, Options::Task::ListTopics);
}

TEST(ParseOptions, OfWhatIsPrintedTakesTheFileForIt) {
    EXPECT_EQ(Parsed({"--list-topics", "-o", "f"}).output, "f");
    EXPECT_EQ(Parsed({"--completion", "zsh", "--output", "f"}).output, "f");
    EXPECT_EQ(Parsed({"--completion", "zsh", "--output", "f"}).shell, Shell::Zsh);
    for (const Arguments &task : {Arguments{"--list-topics"}, Arguments{"--completion", "zsh"}}) {
        ExpectWrong(task + Arguments{"-o", ""}, {"--output is empty"});
        ExpectWrong(task + Arguments{"-o", "f", "-o", "g"}, {"--output is given more than once"});
    }
}

TEST(ParseOptions, TakesTheShortForms) {
    for (const Arguments &arguments : {Arguments{"-f", "rtf", "-o", "x"}, Arguments{"-frtf", "-ox"},
                                       Arguments{"-f=rtf", "-o=x"}}) {
        const Options options = Parsed(ann + arguments);
        EXPECT_EQ(options.format, Format::Rtf);
        EXPECT_EQ(options.output, "x");
    }
    EXPECT_EQ(Parsed(ann + Arguments{"-o", "-"}).output, "-");
    ExpectWrong(ann + Arguments{"-f", "json", "--format", "json"},
                {"--format is given more than once"});
}

TEST(ParseOptions, TakesTopicsInAnyCase) {
    EXPECT_EQ(Parsed({"--topic", "personal day", "--topic", "COMPREHENSIVE READING"}).topics,
              (std::vector<std::u16string_view>{u"Personal Day", u"Comprehensive Reading"}));
}

TEST(ParseOptions, OfAPieceOfABatch) {
    const Options options = Parsed({"--batch", "-", "--first-line", "200001", "--max-errors", "3"});
    EXPECT_EQ(options.firstLine, 200'001);
    EXPECT_EQ(options.maxErrors, 3);
    EXPECT_EQ(Parsed({"--batch", "-"}).firstLine, 1);
    EXPECT_EQ(Parsed({"--batch", "-"}).maxErrors, std::nullopt);
    for (const char *option : {"--first-line", "--max-errors"}) {
        for (const char *value : {"", "0", "-1", "+1", "1.0", "1e3", "x", "٣", "1000000000000001",
                                  "9999999999999999999"})
            ExpectWrong(
                {"--batch", "-", option, value},
                {option + std::string(": \"") + value + "\"", "from 1 to 1000000000000000."});
        ExpectWrong(ann + Arguments{option, "1"}, {option, "goes with --batch only"});
        ExpectWrong({"--book", option, "1"}, {option, "does not go with --book"});
    }
}

/// The options that take a value, and what the help says that it is.
constexpr std::pair<const char *, const char *> valued[]{
    {"--first", "NAME"},       {"--middle", "NAME"},
    {"--last", "NAME"},        {"--month", "an English month name, its abbreviation, or 1 to 12"},
    {"--day", "1 to 31"},      {"--year", "1900 to 2050"},
    {"--today", "YYYY-MM-DD"}, {"--topic", "CAPTION"},
    {"--format", "text"},      {"--output", "FILE"},
    {"--batch", "FILE"},       {"--output-dir", "DIR"},
    {"--date", "YYYY-MM-DD"},  {"--first-line", "N"},
    {"--max-errors", "N"},     {"--delimiter", "CHAR"},
    {"--jobs", "N"},           {"--name-template", "TEMPLATE"},
    {"--paper", "a4"}};

TEST(ParseOptions, PaperGoesWithPdf) {
    EXPECT_EQ(Parsed(ann + Arguments{"--format", "pdf"}).paper, Paper::A4);
    EXPECT_EQ(Parsed(ann + Arguments{"--format", "pdf", "--paper", "letter"}).paper, Paper::Letter);
    ExpectWrong(ann + Arguments{"--format", "pdf", "--paper", "A5"},
                {"--paper: \"A5\"", "a4 or letter"});
    ExpectWrong(ann + Arguments{"--format", "html", "--paper", "a4"},
                {"--paper", "format pdf only"});
}

TEST(ParseOptions, TellsWhichValueIsMissing) {
    for (const auto &[option, allowed] : valued)
        ExpectWrong({"--help", option}, {std::string(option) + " lacks its value; give ", allowed});
    ExpectWrong({"--first", "--last", "M"}, {"--first lacks its value, as --last is an option"});
    ExpectWrong({"--batch", "-o", "x"}, {"--batch lacks its value, as -o is an option"});
    ExpectWrong({"-o", "--book"}, {"-o lacks its value, as --book is"});
    ExpectWrong({"--topic", "--first=A"}, {"--topic lacks its value, as --first=A is"});
    ExpectWrong({"--bogus", "--first", "--last"}, {"Unknown option \"--bogus\""});
    EXPECT_EQ(Parsed({"--first", "-x"}).person.first, "-x"); // no option, so a name
    ExpectWrong({"--book=x", "--first", "--last"}, {"--first lacks"});
}

TEST(ParseOptions, TakesEveryOptionButTopicOnce) {
    for (const auto &[option, allowed] : valued)
        if (std::string_view(option) != "--topic") {
            ExpectWrong({option, "x", option, "y"}, {std::string(option) + " is given more than"});
            ExpectWrong({option, "x", option, "x"}, {std::string(option) + " is given more than"});
        }
    ExpectWrong({"--book", "--book"}, {"--book is given more than once"});
}

TEST(ParseOptions, RefusesOptionsThatDoNotGoTogether) {
    for (const char *person :
         {"--first", "--middle", "--last", "--month", "--day", "--year", "--date"}) {
        ExpectWrong({"--book", person, "3"}, {person, "--book"});
        ExpectWrong({"--batch", "-", person, "3"}, {person, "--batch"});
    }
    ExpectWrong({"--book", "--batch", "-"}, {"--book", "--batch"});
    ExpectWrong({"--book", "--today", "2026-11-16"}, {"--today", "--book"});
    ExpectWrong({"--book", "--topic", "Essence"}, {"--topic", "--book"});
    ExpectWrong({"--book", "--format", "rtf"}, {"--format", "rtf", "--book"});
    ExpectWrong({"--book", "--output-dir", "d"}, {"--output-dir", "--book"});
    ExpectWrong(ann + Arguments{"--output-dir", "d"}, {"--output-dir", "--batch"});
    for (const Arguments &arguments :
         {Arguments{"--jobs", "2"}, Arguments{"--delimiter", ";"}, Arguments{"--no-clobber"},
          Arguments{"--name-template", "{line}"}})
        ExpectWrong(ann + arguments, {arguments.front(), "goes with --batch only"});
    for (const Arguments &arguments :
         {Arguments{"--no-clobber"}, Arguments{"--name-template", "{line}"}})
        ExpectWrong(Arguments{"--batch", "-"} + arguments,
                    {arguments.front(), "goes with --output-dir only"});
    for (const char *format : {"csv", "tsv"})
        for (const Arguments &arguments : {ann, Arguments{"--batch", "-"}, Arguments{"--book"}})
            ExpectWrong(arguments + Arguments{"--format", format}, {"--numbers only"});
    for (const Arguments &arguments :
         {Arguments{"--format", "text"}, Arguments{"--format", "rtf"},
          Arguments{"--topic", "Essence"}, Arguments{"--head"}, Arguments{"--no-head"}})
        ExpectWrong(ann + Arguments{"--numbers"} + arguments, {arguments.front(), "--numbers"});
    ExpectWrong({"--batch", "-", "--numbers", "--output-dir", "d"}, {"--output-dir", "--numbers"});
    ExpectWrong({"--book", "--numbers"}, {"--numbers", "--book"});
    ExpectWrong(ann + Arguments{"--head", "--no-head"}, {"--head", "--no-head"});
    ExpectWrong({"--batch", "-", "--head"}, {"--head goes with the formats text and rtf only"});
    ExpectWrong({"--batch", "-", "a", "-"}, {"--batch: - is standard input"});
    ExpectWrong({"--batch", "a", ""}, {"--batch: one of the files has an empty name"});
    ExpectWrong({"--batch", "-", "--output-dir", "d", "--format", "json"},
                {"--format", "--output-dir", "text", "rtf"});
    ExpectWrong({"--batch", "-", "--output-dir", "d", "--output", "f"},
                {"--output does", "--output-dir"});
}

TEST(ParseOptions, NamesTheOptionItsValueAndWhatIsAllowed) {
    struct Values {
        const char *option;
        std::string allowed;
        std::vector<std::string> wrong;
    };
    for (const auto &[option, allowed, wrong] : std::vector<Values>{
             {"--format", "text, json, rtf, html, pdf or markdown", {"", "docx", "JSON", "te\nxt"}},
             {"--topic",
              "--list-topics",
              {"", "Lucky Number", "Essence ", "Ess\nence", "Destiny / Expression Number",
               // Nodes of the tree that are no topics.
               "Numerology", "Help", "Reset"}},
             {"--today",
              "YYYY-MM-DD",
              {"", "2026-1-5", "26-01-05", "05-01-2026", "2026/01/05", "2026-01-05 ",
               "2026-01-05T00:00", "2026-01-05\n", "today", "1.1.2026", "٢٠٢٦-٠١-٠٥"}}})
        for (const std::string &value : wrong)
            ExpectWrong({option, value}, {option + std::string(": \"") +
                                              OneLine(QString::fromStdString(value)) + "\" is not",
                                          allowed});
    for (const std::string day : {"2027-02-30", "2026-02-29", "2100-02-29", "2026-04-31",
                                  "2026-13-01", "2026-00-01", "2026-01-00", "0000-01-01"})
        ExpectWrong({"--today", day}, {"--today: \"" + day + "\" is not", "there is no such day"});
    ExpectWrong({"--topic", "Essence", "--topic", "Essences"}, {"--topic: \"Essences\""});
    ExpectWrong(ann + Arguments{"--output", ""},
                {"--output is empty", "or - for standard output."});
    ExpectWrong({"--batch", ""}, {"--batch is empty", "or - for standard input."});
    ExpectWrong({"--batch", "-", "--output-dir", ""}, {"--output-dir is empty", "a directory."});
}

TEST(ParseOptions, RefusesWhatIsNoOption) {
    for (const auto &[arguments, part] : std::vector<std::pair<Arguments, std::string>>{
             {{"--bogus"}, "\"--bogus\"; see --help"},
             {{"--bogus=1"}, "\"--bogus\""},
             {{"--bo\ngus"}, "\"--bo\\ngus\""},
             {{"-x"}, "\"-x\""},
             {{"-hx"}, "\"-x\""},
             {{"-topic"}, "\"-topic\""},
             {{"--FORMAT", "json"}, "\"--FORMAT\""},
             {{"--form", "json"}, "\"--form\""},
             {{"Ann"}, "\"Ann\" is not an option"},
             {{"A\nnn"}, "\"A\\nnn\" is not an option"},
             {{"--", "--day"}, "\"--day\" is not an option"},
             {{""}, "\"\" is not an option"},
             {{"-"}, "\"-\" is not an option"},
             {{"--book", "LifePathText"}, "\"LifePathText\" is not an option"},
             {{"--book=all"}, "'--book'"},
             {{"--version=1"}, "'--version'"},
             {{"--help=me"}, "'--help'"}}) {
        ExpectWrong(arguments, {part});
    }
}

TEST(ParseOptions, QuotesNoMoreThanAnExcerpt) {
    const std::string much(100'000, 'x');
    const std::string shown = "xxx..." + std::string(20, 'x') + '"';
    for (const Arguments &arguments :
         {Arguments{"--today", much}, Arguments{"--topic", much}, Arguments{"--format", much},
          Arguments{"--" + much}, Arguments{"--" + much + "=1"}, Arguments{much},
          Arguments{"--first", much + '\xFF'}}) {
        const std::string line = RefusalOf([&] { Parsed(arguments); });
        EXPECT_LT(line.size(), 250U) << line;
        if (arguments.back().back() == '\xFF')
            continue;
        ExpectLine(line, {shown});
    }
}

// Latin 1, a stray byte, a sequence cut short, an overlong one and a surrogate.
TEST(RequireUtf8, NamesTheOptionOfTheValueThatIsNot) {
    for (const std::string value : {"Zo\xEB", "A\xFF", "A\xC3", "A\xC0\xAF", "A\xED\xA0\xBD"})
        for (const auto &[option, allowed] : valued) {
            ExpectWrong({"--book", option, value},
                        {std::string(option) + ": \"", "is not UTF-8; give a text in UTF-8"});
            ExpectWrong({"--first", "A", option + ('=' + value)}, {std::string(option) + ": \""});
        }
    ExpectWrong({"--first", "--last", "--month", "\xFF"}, {"--month: \""});
    ExpectWrong({"--first", "--last=\xFF"}, {"--first: \""});
}

TEST(RequireUtf8, NamesNoOptionWhereNoneTakesTheArgument) {
    for (const Arguments &arguments : std::vector<Arguments>{{"\xFF"},
                                                             {"--first", "A", "\xFF"},
                                                             {"--first", "--last", "\xFF"},
                                                             {"--book", "\xFF"},
                                                             {"--\xFF=1"},
                                                             {"--bogus=\xFF"}}) {
        const std::string line = RefusalOf([&] { Parsed(arguments); });
        EXPECT_TRUE(line.starts_with('"')) << line;
    }
}

TEST(RequireUtf8, TakesEveryCharacterAndAnyNameOfTheProgram) {
    EXPECT_NO_THROW(
        Parsed({"--first", "Zoë 😀", "--last=Ōe", "--middle", "", "--month", "\xEF\xBF\xBD"}));
    const char *const name = "/home/zo\xEB/orravane-report";
    EXPECT_NO_THROW(RequireUtf8(1, &name));
}

} // namespace
