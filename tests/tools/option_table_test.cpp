// The table of options against what is made from it or tells of it.

#include "tools/option_table.h"

#include "report/topic_tree.h"
#include "tools/help.h"
#include "tools/options.h"
#include "tools/reading.h"
#include "tools/refusal.h"
#include "tools/text.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>

namespace {

/// The man page without the marks of its typesetting.
std::string ManPage() {
    std::ifstream file(MAN_PAGE);
    EXPECT_TRUE(file.is_open()) << MAN_PAGE;
    std::string page{std::istreambuf_iterator<char>(file), {}};
    page = std::regex_replace(page, std::regex(R"(\\(-))"), "$1");
    return page;
}

/// What stands between two headings of the man page.
std::string Section(const std::string &page, const std::string &heading) {
    const std::size_t begin = page.find("\n.SH " + heading + '\n');
    EXPECT_NE(begin, std::string::npos) << heading;
    return page.substr(begin, page.find("\n.SH ", begin + 1) - begin);
}

TEST(OptionTable, HasEachOptionOnce) {
    std::set<std::string_view> names;
    std::set<char> letters;
    for (const OptionRow &row : OptionTable()) {
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        EXPECT_TRUE(row.letter == 0 || letters.insert(row.letter).second) << row.letter;
        EXPECT_EQ(RowOf(row.id).name, row.name);
        EXPECT_EQ(row.value.empty(), row.kind == ValueKind::None) << row.name;
        EXPECT_TRUE(row.help.ends_with('.')) << row.name;
    }
    EXPECT_EQ(letters, (std::set<char>{'h', 'V', 'o', 'f', 'q'}));
}

TEST(HelpText, HasEveryOptionAndItsDescriptionWithin80Columns) {
    const std::string help = HelpText();
    std::istringstream lines(help);
    for (std::string line; std::getline(lines, line);) {
        EXPECT_LT(line.size(), 80U) << line;
        EXPECT_FALSE(line.ends_with(' ')) << line;
    }
    const std::string words = std::regex_replace(help, std::regex("\\s+"), " ");
    for (const OptionRow &row : OptionTable()) {
        std::string entry = row.letter == 0 ? " " : std::string(" -") + row.letter + ", ";
        entry += "--" + std::string(row.name) + ' ';
        if (!row.value.empty())
            entry += std::string(row.value) + ' ';
        EXPECT_NE(words.find(entry + std::string(row.help)), std::string::npos) << entry;
    }
    EXPECT_NE(help.find("Examples:\n"), std::string::npos);
}

TEST(TopicList, HasEveryCaptionOnALine) {
    std::string expected;
    for (const std::u16string_view caption : AllCaptions())
        expected += ToUtf8(caption) + '\n';
    EXPECT_EQ(TopicList(), expected + "Comprehensive Reading\n");
}

// What the shells make of it is tried in the shells themselves.
TEST(Completion, HasEveryOptionForEveryShell) {
    for (const auto &[shell, prefix] :
         {std::pair(Shell::Bash, "--"), {Shell::Zsh, "--"}, {Shell::Fish, " -l "}}) {
        const std::string script = CompletionFor(shell);
        for (const OptionRow &row : OptionTable())
            EXPECT_TRUE(std::regex_search(
                script, std::regex(prefix + std::string(row.name) + "(?![a-z-])")))
                << row.name;
    }
}

/// Whether `text` has each of the names as a word.
template <typename Table> void ExpectNamesOf(const Table &table, std::string_view text) {
    for (const auto &[name, value] : table)
        EXPECT_TRUE(
            std::regex_search(std::string(text), std::regex("\\b" + std::string(name) + "\\b")))
            << name << " in: " << text;
}

// A value that a shell offers is one that the program takes, and that --help names.
TEST(Completion, OffersTheFormatsShellsAndPapersThereAre) {
    const std::string script = CompletionFor(Shell::Fish);
    for (const char *format : {"text", "json", "rtf", "html", "pdf", "markdown"})
        EXPECT_NO_THROW(ParseOptions({"orravane-report", "--format", format}));
    for (const char *format : {"csv", "tsv"})
        EXPECT_NO_THROW(ParseOptions({"orravane-report", "--numbers", "--format", format}));
    for (const char *paper : {"a4", "letter"})
        EXPECT_NO_THROW(ParseOptions({"orravane-report", "--format=pdf", "--paper", paper}));
    for (const char *shell : {"bash", "zsh", "fish"})
        EXPECT_NO_THROW(ParseOptions({"orravane-report", "--completion", shell}));
    for (const char *shell : {"csh", "Bash", ""})
        EXPECT_THROW(ParseOptions({"orravane-report", "--completion", shell}), Refusal);
    for (const char *offer : {"-l format -s f -x -a 'text json rtf html pdf markdown csv tsv'",
                              "-l completion -x -a 'bash zsh fish'", "-l paper -x -a 'a4 letter'"})
        EXPECT_NE(script.find(offer), std::string::npos) << offer;
    ExpectNamesOf(formatNames, RowOf(OptionId::Format).help);
    ExpectNamesOf(shellNames, RowOf(OptionId::Completion).help);
    ExpectNamesOf(paperNames, RowOf(OptionId::Paper).help);
}

// Each has a paragraph under OPTIONS, with its value and its short form, and stands in an
// example.
TEST(ManPage, TellsOfEveryOption) {
    const std::string page = ManPage();
    const std::string options = Section(page, "OPTIONS");
    const std::string examples = Section(page, "EXAMPLES");
    for (const OptionRow &row : OptionTable()) {
        const std::string name = "--" + std::string(row.name);
        std::string entry;
        if (row.letter != 0)
            entry = std::string(".BR -") + row.letter + " \", \" " + name +
                    (row.value.empty() ? "" : " \" \\fI" + std::string(row.value) + '"');
        else
            entry = row.value.empty() ? ".B " + name
                                      : ".BI " + name + " \" " + std::string(row.value) + '"';
        EXPECT_NE(options.find("\n.TP\n" + entry + '\n'), std::string::npos) << entry;
        const std::regex used("(" + name + "(?![a-z-])" +
                              (row.letter == 0 ? ")" : std::string("|[ ]-") + row.letter + " )"));
        EXPECT_TRUE(std::regex_search(examples, used)) << row.name << " has no example";
    }
    // And of no other.
    const std::regex mentioned("--([a-z][a-z-]*)");
    for (std::sregex_iterator at(options.begin(), options.end(), mentioned);
         at != std::sregex_iterator(); ++at) {
        const std::string name = (*at)[1];
        EXPECT_TRUE(std::ranges::any_of(OptionTable(), [&](const OptionRow &row) {
            return row.name == name;
        })) << name;
    }
}

// Each has a paragraph under OUTPUT; the tables of numbers have theirs together.
TEST(ManPage, TellsOfEveryFormat) {
    const std::string output = Section(ManPage(), "OUTPUT");
    for (const auto &[name, format] : formatNames)
        EXPECT_NE(output.find(IsTable(format) ? "\n.BR csv \" or \" tsv ,\n"
                                              : "\n.TP\n" + std::string(name) + '\n'),
                  std::string::npos)
            << name;
}

TEST(ManPage, TellsOfEveryExitCode) {
    const std::string codes = Section(ManPage(), "EXIT STATUS");
    for (const char *code : {"0", "1", "2", "3"})
        EXPECT_NE(codes.find(std::string("\n.TP\n.B ") + code + '\n'), std::string::npos) << code;
    EXPECT_EQ(codes.find("\n.B 4\n"), std::string::npos);
}

} // namespace
