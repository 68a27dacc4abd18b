#include "tools/output.h"

#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"

#include <gtest/gtest.h>

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
        EXPECT_TRUE(RefusalOf([&, name = name] { Output{File(name)}; }, ExitCode::CannotReadOrWrite)
                        .starts_with("--output: " + Shown(Path(name)) + reason));
    }
    EXPECT_TRUE(RefusalOf([&] { Output(File("no/report"), Output::Kind::InFolder); },
                          ExitCode::CannotReadOrWrite)
                    .starts_with("--output-dir: "));
    EXPECT_EQ(Files(), before);
}

TEST_F(OutputTest, ToStandardOutputIsOnItsWayAtOnce) {
    for (const char *name : {"", "-"}) {
        testing::internal::CaptureStdout();
        Output output((QString(name)));
        output.Write("text\n");
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "text\n") << name;
    }
    EXPECT_FALSE(std::filesystem::exists("-"));
}

TEST_F(OutputTest, InAFolderStaysWhatIsThereOnRequest) {
    Make("report", "mine");
    for (const auto &[kind, left] :
         {std::pair(Output::Kind::NewInFolder, "mine"), {Output::Kind::InFolder, "replaced"}}) {
        Output output(File("report"), kind);
        output.Write("replaced");
        output.Finish();
        EXPECT_EQ(Files(), (FileMap{{"report", left}}));
    }
    Output output(File("another"), Output::Kind::NewInFolder);
    output.Write("new");
    output.Finish();
    EXPECT_EQ(Read(Path("another")), "new");
}

} // namespace
