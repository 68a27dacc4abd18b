#include "tools/output.h"

#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"

#include <gtest/gtest.h>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class OutputTest : public FolderTest {
protected:
    QString File(const std::string &name) const { return QString::fromStdString(Path(name)); }
};

TEST_F(OutputTest, AppearsWholeWhenItIsFinished) {
    Output output(File("Bericht für Ännchen – 😀.txt"));
    output.Write("first ");
    output.Write("");
    output.Write(std::string(1'000'000, 'x'));
    EXPECT_FALSE(std::filesystem::exists(Path("Bericht für Ännchen – 😀.txt")));
    output.Finish();
    EXPECT_EQ(Files(),
              (FileMap{{"Bericht für Ännchen – 😀.txt", "first " + std::string(1'000'000, 'x')}}));
}

TEST_F(OutputTest, LeavesNothingBehindWhenItIsGivenUp) {
    Output(File("report")).Write("text");
    EXPECT_TRUE(Files().empty());
}

TEST_F(OutputTest, LeavesAnExistingFileAloneUntilItIsFinished) {
    Make("report", "what stood here before");
    Output(File("report")).Write("after");
    EXPECT_EQ(Files(), (FileMap{{"report", "what stood here before"}}));
    Output output(File("report"));
    output.Write("after");
    EXPECT_EQ(Read(Path("report")), "what stood here before");
    output.Finish();
    EXPECT_EQ(Files(), (FileMap{{"report", "after"}}));
}

TEST_F(OutputTest, MayBeEmpty) {
    Output(File("report")).Finish();
    EXPECT_EQ(Files(), (FileMap{{"report", ""}}));
}

TEST_F(OutputTest, TellsOptionAndFileThatCannotBeWritten) {
    std::filesystem::create_directory(Path("folder"));
    Make("file", "before");
    const FileMap before = Files();
    for (const auto &[name, reason] : {std::pair("no/report", ": No such file or directory"),
                                       {"folder", ": "},
                                       {"file/report", ": "}}) {
        EXPECT_TRUE(RefusalOf([&] { Output{File(name)}; }, ExitCode::Failed)
                        .starts_with("--output: " + Shown(Path(name)) + reason));
    }
    EXPECT_TRUE(
        RefusalOf([&] { Output(File("no/report"), Output::Kind::InFolder); }, ExitCode::Failed)
            .starts_with("--output-dir: "));
    EXPECT_EQ(Files(), before);
}

// A pipe or a device cannot be replaced by a file; it is written, and says at the end what it
// lacks. A pipe of the test's own, since a real device would not survive a failure as root.
TEST_F(OutputTest, WritesAPipeAsItIs) {
    const std::string pipe = Path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const int reader = open(pipe.c_str(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);
    std::signal(SIGPIPE, SIG_IGN);
    {
        Output output(File("pipe"));
        output.Write("text");
        output.Finish();
        char bytes[8] = {};
        EXPECT_EQ(read(reader, bytes, sizeof bytes), 4);
        EXPECT_STREQ(bytes, "text");
        close(reader);
        EXPECT_EQ(RefusalOf([&] { output.Write("more"); }, ExitCode::Failed),
                  "--output: " + Shown(pipe) + ": Broken pipe");
    }
    std::signal(SIGPIPE, SIG_DFL);
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

TEST_F(OutputTest, ToStandardOutputIsOnItsWayAtOnce) {
    testing::internal::CaptureStdout();
    Output output((QString()));
    output.Write("text\n");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "text\n");
}

} // namespace
