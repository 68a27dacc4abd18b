#include "tools/options.h"

#include <gtest/gtest.h>

namespace {

const QStringList ann{"orravane-report", "--first", "Ann", "--last", "Lee", "--month",
                      "March",           "--day",   "7",   "--year", "1990"};

std::optional<Options> Parsed(const QStringList &arguments) {
    QString complaint;
    const auto options = ParseOptions(arguments, complaint);
    EXPECT_EQ(complaint.isEmpty(), options.has_value()) << complaint.toStdString();
    return options;
}

std::string ComplaintAbout(const QStringList &arguments) {
    QString complaint;
    EXPECT_FALSE(ParseOptions(arguments, complaint).has_value());
    return complaint.toStdString();
}

TEST(ParseOptions, OfOnePerson) {
    const auto options = Parsed(ann + QStringList{"--middle", " M "});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->task, Options::Task::Person);
    EXPECT_EQ(options->person.first, "Ann");
    EXPECT_EQ(options->person.middle, " M ");
    EXPECT_EQ(options->person.last, "Lee");
    EXPECT_EQ(options->person.month, "March");
    EXPECT_EQ(options->person.day, "7");
    EXPECT_EQ(options->person.year, "1990");
    EXPECT_EQ(options->format, Format::Text);
    EXPECT_FALSE(options->today);
    EXPECT_EQ(options->output, "");
    EXPECT_EQ(options->topics.size(), 22U);
}

// What a person's inputs may be is checked where one is read, on the command line or not.
TEST(ParseOptions, LeavesTheInputsOfAPersonUnchecked) {
    const auto options = Parsed({"orravane-report", "--month", "13"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->person.month, "13");
    EXPECT_EQ(options->person.first, "");
}

TEST(ParseOptions, TakesFormatDayTopicsAndFile) {
    const auto options = Parsed(ann + QStringList{"--format", "rtf", "--today", "2024-02-29",
                                                  "--output", "f", "--topic", "Essence", "--topic",
                                                  "Comprehensive Reading", "--topic", "Essence"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->format, Format::Rtf);
    EXPECT_EQ(options->today, std::chrono::year(2024) / 2 / 29);
    EXPECT_EQ(options->output, "f");
    EXPECT_EQ(options->topics,
              (std::vector<std::u16string_view>{u"Essence", u"Comprehensive Reading", u"Essence"}));
    EXPECT_EQ(Parsed(ann + QStringList{"--format", "json"})->format, Format::Json);
    EXPECT_EQ(Parsed(ann + QStringList{"--format", "text"})->format, Format::Text);
}

TEST(ParseOptions, OfABatch) {
    const auto lines = Parsed({"orravane-report", "--batch", "-"});
    ASSERT_TRUE(lines);
    EXPECT_EQ(lines->task, Options::Task::Batch);
    EXPECT_EQ(lines->batchFile, "-");
    EXPECT_EQ(lines->format, Format::Json);

    const auto files = Parsed({"orravane-report", "--batch", "p.csv", "--output-dir", "d"});
    ASSERT_TRUE(files);
    EXPECT_EQ(files->batchFile, "p.csv");
    EXPECT_EQ(files->outputDir, "d");
    EXPECT_EQ(files->format, Format::Text);
    EXPECT_EQ(
        Parsed({"orravane-report", "--batch", "-", "--output-dir", "d", "--format", "rtf"})->format,
        Format::Rtf);
}

TEST(ParseOptions, OfTheBookHelpAndVersion) {
    const auto book = Parsed({"orravane-report", "--book", "--format", "json"});
    ASSERT_TRUE(book);
    EXPECT_EQ(book->task, Options::Task::Book);
    EXPECT_EQ(book->format, Format::Json);
    const auto help = Parsed({"orravane-report", "--help"});
    ASSERT_TRUE(help);
    EXPECT_EQ(help->task, Options::Task::Help);
    EXPECT_TRUE(help->help.contains("--output-dir"));
    EXPECT_EQ(Parsed({"orravane-report", "--version"})->task, Options::Task::Version);
}

TEST(ParseOptions, NamesTheOptionAndWhatIsAllowed) {
    EXPECT_NE(ComplaintAbout(ann + QStringList{"--format", "doc"}).find("text, json or rtf"),
              std::string::npos);
    EXPECT_NE(ComplaintAbout(ann + QStringList{"--today", "1.1.2026"}).find("YYYY-MM-DD"),
              std::string::npos);
    EXPECT_NE(ComplaintAbout({"orravane-report", "--month"}).find("1 to 12"), std::string::npos);
    const std::string twice = ComplaintAbout(ann + QStringList{"--day", "8"});
    EXPECT_NE(twice.find("--day"), std::string::npos);
    const std::string both = ComplaintAbout({"orravane-report", "--book", "--batch", "-"});
    EXPECT_NE(both.find("--book"), std::string::npos);
    EXPECT_NE(both.find("--batch"), std::string::npos);
}

// Only the option that is really without one, not its name as the value of another.
TEST(ParseOptions, TellsWhichValueIsMissing) {
    EXPECT_TRUE(ComplaintAbout(ann + QStringList{"--topic"}).starts_with("--topic: the value"));
    EXPECT_TRUE(ComplaintAbout({"orravane-report", "--bogus", "--first", "--last"})
                    .starts_with("Unknown option \"bogus\""));
    EXPECT_NE(ComplaintAbout({"orravane-report", "--book=x", "--first", "--last"}).find("'--book'"),
              std::string::npos);
    EXPECT_EQ(Parsed({"orravane-report", "--first", "--last"})->person.first, "--last");
}

/// The complaint about arguments that are not all UTF-8; empty when they are.
std::string NotUtf8(std::vector<const char *> arguments) {
    arguments.insert(arguments.begin(), "orravane-report");
    QString complaint;
    const bool all = AreUtf8(static_cast<int>(arguments.size()), arguments.data(), complaint);
    EXPECT_EQ(all, complaint.isEmpty());
    return complaint.toStdString();
}

TEST(AreUtf8, TakesEveryCharacter) {
    EXPECT_EQ(NotUtf8({}), "");
    // The replacement character is one like others.
    EXPECT_EQ(NotUtf8({"--first", "Zoë 😀", "--last=Ōe", "", "\xEF\xBF\xBD", "-"}), "");
}

TEST(AreUtf8, NamesTheOptionOfTheValueThatIsNot) {
    // Latin 1, a stray byte, a sequence cut short, an overlong one and a surrogate.
    for (const char *value : {"Zo\xEB", "A\xFF", "A\xC3", "A\xC0\xAF", "A\xED\xA0\xBD"})
        EXPECT_TRUE(NotUtf8({"--book", "--first", value}).starts_with("--first: \""));
    EXPECT_TRUE(NotUtf8({"--first", "A", "--last=\xFF"}).starts_with("--last: \""));
    EXPECT_TRUE(NotUtf8({"--first", "--last", "--month", "\xFF"}).starts_with("--month: \""));
    EXPECT_TRUE(NotUtf8({"--first", "--last=\xFF"}).starts_with("--first: \""));
}

TEST(AreUtf8, NamesNoOptionWhereNoneTakesTheArgument) {
    for (const std::vector<const char *> &arguments : {std::vector{"\xFF"},
                                                       {"--first", "A", "\xFF"},
                                                       {"--first", "--last", "\xFF"},
                                                       {"--book", "\xFF"},
                                                       {"--\xFF=1"},
                                                       {"--bogus=\xFF"}})
        EXPECT_TRUE(NotUtf8(arguments).starts_with("\"")) << NotUtf8(arguments);
}

TEST(AreUtf8, DoesNotMindTheNameOfTheProgram) {
    const char *const name = "/home/zo\xEB/orravane-report";
    QString complaint;
    EXPECT_TRUE(AreUtf8(1, &name, complaint));
}

} // namespace
