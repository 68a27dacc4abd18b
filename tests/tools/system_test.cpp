// What differs from system to system, by the same tests everywhere.

#include "tools/system.h"

#include "tests/tools/folder_test.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>

using namespace std::string_literals;

namespace {

class SystemTest : public FolderTest {
protected:
    static std::optional<InputFile::Opened> Open(const std::string &path) {
        return InputFile::Open(QString::fromStdString(path));
    }
};

TEST_F(SystemTest, ReadsAFilePieceByPieceAndEndsWith0) {
    const std::string all = "a\r\nb\n\x1A\0c"s + "\xC3\xA4";
    const auto file = Open(Make("ein Bericht – Ω.csv", all));
    ASSERT_TRUE(file);
    EXPECT_FALSE(file->isFolder);
    EXPECT_EQ(file->size, static_cast<long long>(all.size()));
    std::string seen;
    std::array<char, 3> piece{};
    long long count = 0;
    while ((count = InputFile::Read(file->descriptor, piece.data(), piece.size())) > 0)
        seen.append(piece.data(), static_cast<std::size_t>(count));
    EXPECT_EQ(count, 0);
    EXPECT_EQ(seen, all);
    InputFile::Close(file->descriptor);
}

TEST_F(SystemTest, TellsAFolderFromAFile) {
    const auto folder = Open(Path(""));
    ASSERT_TRUE(folder);
    EXPECT_TRUE(folder->isFolder);
    InputFile::Close(folder->descriptor);
}

TEST_F(SystemTest, LeavesTheReasonWhereAFileCannotBeOpened) {
    errno = 0;
    EXPECT_FALSE(Open(Path("missing")));
    EXPECT_EQ(errno, ENOENT);
    errno = 0;
    EXPECT_FALSE(Open(Path("no folder/missing")));
    EXPECT_EQ(errno, ENOENT);
}

TEST_F(SystemTest, WritesToStandardErrorAsItIs) {
    testing::internal::CaptureStderr();
    EXPECT_FALSE(IsTerminal(2)); // a file
    EXPECT_EQ(TerminalColumns(), 80);
    WriteToStandardError("Zo\xC3\xAB ");
    WriteToStandardError("");
    WriteToStandardError(std::string(100'000, 'x'));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Zo\xC3\xAB " + std::string(100'000, 'x'));
}

} // namespace
