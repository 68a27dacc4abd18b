#include "tools/line_reader.h"

#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"

#include <gtest/gtest.h>

#include <zlib.h>

namespace {

using Found = LineReader::Found;

class LineReaderTest : public FolderTest {
protected:
    QString File(const std::string &name) const { return QString::fromStdString(Path(name)); }

    /// `text` as one member of gzip.
    std::string Packed(std::string_view text) const {
        const gzFile file = gzopen(Path("member").c_str(), "wb");
        gzwrite(file, text.data(), static_cast<unsigned>(text.size()));
        gzclose(file);
        return Read(Path("member"));
    }

    /// All lines of `bytes`. A refusal goes through.
    std::vector<std::string> LinesOf(std::string_view bytes) const {
        Make("input", bytes);
        LineReader reader(File("input"));
        std::vector<std::string> lines;
        std::string line;
        Found found{};
        while ((found = reader.Next(line)) != Found::End)
            lines.push_back(found == Found::Line ? line : "too long: " + line.substr(0, 3));
        EXPECT_EQ(reader.Next(line), Found::End);
        EXPECT_EQ(reader.Passed(), reader.Size());
        return lines;
    }
};

using Lines = std::vector<std::string>;

TEST_F(LineReaderTest, CutsAtLineFeeds) {
    EXPECT_EQ(LinesOf(""), Lines{});
    EXPECT_EQ(LinesOf("a"), Lines{"a"});
    EXPECT_EQ(LinesOf("a\n"), Lines{"a"});
    EXPECT_EQ(LinesOf("\n"), Lines{""});
    EXPECT_EQ(LinesOf("a\r\n\r\nb\rc\r"), (Lines{"a", "", "b\rc"}));
    EXPECT_EQ(LinesOf(std::string_view("a\0b\nc", 5)), (Lines{std::string("a\0b", 3), "c"}));
}

// As where one file was put behind another.
TEST_F(LineReaderTest, SkipsAByteOrderMarkBeforeAnyLine) {
    EXPECT_EQ(LinesOf("\xEF\xBB\xBF"
                      "a\n\xEF\xBB\xBF"
                      "b\nc\xEF\xBB\xBF\n"),
              (Lines{"a", "b", "c\xEF\xBB\xBF"}));
}

TEST_F(LineReaderTest, KeepsTheBeginningOfALineThatIsTooLong) {
    const std::string most(LineReader::longestLine, 'x');
    EXPECT_EQ(LinesOf(most + "\nb\n"), (Lines{most, "b"}));
    EXPECT_EQ(LinesOf(most + "x\nb\n"), (Lines{"too long: xxx", "b"}));
    EXPECT_EQ(LinesOf("a\n" + most + most + most), (Lines{"a", "too long: xxx"}));
    Make("input", most + "xy");
    std::string line;
    EXPECT_EQ(LineReader(File("input")).Next(line), Found::TooLong);
    EXPECT_EQ(line, most);
}

TEST_F(LineReaderTest, ReadsGzip) {
    std::string text;
    for (int number = 0; number < 100'000; ++number)
        text += std::to_string(number) + '\n';
    const Lines lines = LinesOf(text);
    ASSERT_EQ(lines.size(), 100'000U);
    EXPECT_EQ(LinesOf(Packed(text)), lines);
    EXPECT_EQ(LinesOf(Packed("a\nb") + Packed("") + Packed("c\nd")), (Lines{"a", "bc", "d"}));
    EXPECT_EQ(LinesOf(Packed("a\n") + std::string(1000, '\0')), Lines{"a"});
    EXPECT_EQ(LinesOf(Packed("")), Lines{});
    EXPECT_EQ(LinesOf("\x1F"), Lines{"\x1F"}); // half of its mark is not gzip
    EXPECT_EQ(LinesOf("\x1F\nx"), (Lines{"\x1F", "x"}));
}

TEST_F(LineReaderTest, RefusesGzipThatIsCutOrDamaged) {
    std::string text;
    for (int number = 0; number < 10'000; ++number)
        text += std::to_string(number) + '\n';
    const std::string whole = Packed(text);
    for (const std::size_t size :
         {std::size_t{2}, std::size_t{5}, whole.size() / 2, whole.size() - 1})
        ExpectLine(RefusalOf([&] { LinesOf(whole.substr(0, size)); }, ExitCode::CannotReadOrWrite),
                   {"--batch: the file \"", "is gzip and ends before its end"});
    std::string damaged = whole;
    for (std::size_t index = whole.size() / 2; index < whole.size() / 2 + 20; ++index)
        damaged[index] = static_cast<char>(~damaged[index]);
    std::string wrongSum = whole;
    wrongSum[whole.size() - 6] = static_cast<char>(~wrongSum[whole.size() - 6]);
    for (const std::string &bytes : {damaged, wrongSum, whole + "rubbish"})
        ExpectLine(RefusalOf([&] { LinesOf(bytes); }, ExitCode::CannotReadOrWrite),
                   {"--batch: the file \"", "is gzip and damaged ("});
}

TEST_F(LineReaderTest, TellsHowFarItIs) {
    Make("input", "abc\r\nde\nf");
    LineReader reader(File("input"));
    EXPECT_EQ(reader.Size(), 9);
    EXPECT_EQ(reader.Passed(), 0);
    std::string line;
    reader.Next(line);
    EXPECT_EQ(reader.Passed(), 5);
    reader.Next(line);
    EXPECT_EQ(reader.Passed(), 8);
    reader.Next(line);
    EXPECT_EQ(reader.Passed(), 9);
}

TEST_F(LineReaderTest, RefusesWhatCannotBeOpened) {
    for (const auto &[name, reason] :
         {std::pair("missing", "No such file or directory"), std::pair(".", "Is a directory")})
        ExpectLine(
            RefusalOf([&, name = name] { LineReader{File(name)}; }, ExitCode::CannotReadOrWrite),
            {"--batch: the file \"", "cannot be read (", reason});
}

} // namespace
