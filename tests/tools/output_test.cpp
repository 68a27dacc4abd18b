#include "tools/output.h"

#include "tests/tools/folder_test.h"
#include "tools/excerpt.h"

#include <gtest/gtest.h>

namespace {

class OutputTest : public FolderTest {
protected:
    QString File(const std::string &name) const { return QString::fromStdString(Path(name)); }
};

TEST_F(OutputTest, AppearsWholeWhenItIsFinished) {
    Output output(File("report"));
    output.Write("first ");
    output.Write("");
    output.Write(std::string(1'000'000, 'x'));
    EXPECT_FALSE(std::filesystem::exists(Path("report")));
    output.Finish();
    EXPECT_EQ(output.Error(), "");
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{
                           {"report", "first " + std::string(1'000'000, 'x')}}));
}

TEST_F(OutputTest, LeavesNothingBehindWhenItIsGivenUp) {
    {
        Output output(File("report"));
        output.Write("text");
    }
    EXPECT_TRUE(Files().empty());
}

TEST_F(OutputTest, LeavesAnExistingFileAloneUntilItIsFinished) {
    Make("report", "before");
    {
        Output output(File("report"));
        output.Write("after");
        EXPECT_EQ(Read(Path("report")), "before");
    }
    EXPECT_EQ(Read(Path("report")), "before");
    Output output(File("report"));
    output.Write("after");
    output.Finish();
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"report", "after"}}));
}

TEST_F(OutputTest, MayBeEmpty) {
    Output output(File("report"));
    output.Finish();
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"report", ""}}));
}

TEST_F(OutputTest, TellsWhichFileCannotBeWritten) {
    Output output(File("no/report"));
    EXPECT_EQ(output.Error(),
              "--output: " + Excerpt(File("no/report")) + ": No such file or directory");
    output.Write("text"); // goes nowhere, and harms nothing
    output.Finish();
    EXPECT_TRUE(output.Error().contains(Excerpt(File("no/report"))));
    EXPECT_TRUE(Files().empty());
}

TEST_F(OutputTest, TellsTheOptionThatNamedTheFile) {
    const Output output(File("no/report"), "--output-dir");
    EXPECT_TRUE(output.Error().startsWith("--output-dir: ")) << output.Error().toStdString();
}

TEST_F(OutputTest, ToStandardOutputIsOnItsWayAtOnce) {
    testing::internal::CaptureStdout();
    Output output((QString()));
    output.Write("text\n");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "text\n");
    EXPECT_EQ(output.Error(), "");
}

} // namespace
