// What only Unix has: descriptors under names, pipes, links, modes.

#include "tools/output.h"

#include "tests/tools/complaint.h"
#include "tests/tools/folder_test.h"

#include <gtest/gtest.h>

#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class OutputOnUnix : public FolderTest {
protected:
    QString File(const std::string &name) const { return QString::fromStdString(Path(name)); }
};

// A pipe or a device cannot be replaced by a file; it is written, and says at the end what it
// lacks. A pipe of the test's own, since a real device would not survive a failure as root.
TEST_F(OutputOnUnix, WritesAPipeAsItIs) {
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
        EXPECT_EQ(RefusalOf([&] { output.Write("more"); }, ExitCode::CannotReadOrWrite),
                  "--output: " + Shown(pipe) + ": Broken pipe");
    }
    std::signal(SIGPIPE, SIG_DFL);
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
}

// Written from where it stands, and what stood there stays.
TEST_F(OutputOnUnix, WritesADescriptorAndDoesNotReplaceItsFile) {
    const int descriptor = open(Make("log", "before ").c_str(), O_WRONLY | O_APPEND);
    for (const char *folder : {"/dev/fd/", "/proc/self/fd/"}) {
        Output output(QString(folder) + QString::number(descriptor));
        output.Write("and ");
        output.Finish();
    }
    EXPECT_EQ(write(descriptor, "more", 4), 4); // still open
    close(descriptor);
    EXPECT_EQ(Files(), (FileMap{{"log", "before and and more"}}));
    ExpectLine(RefusalOf([] { Output("/dev/fd/1000"); }, ExitCode::CannotReadOrWrite),
               {"--output: /dev/fd/1000: Bad file descriptor"});
}

TEST_F(OutputOnUnix, ReplacesTheFileBehindALink) {
    Make("real", "before");
    std::filesystem::create_directory(Path("folder"));
    std::filesystem::create_symlink("../real", Path("folder/link"));
    std::filesystem::create_symlink("link", Path("folder/again"));
    std::filesystem::create_symlink("new", Path("folder/dangling"));
    for (const char *name : {"folder/again", "folder/dangling"}) {
        Output output(File(name));
        output.Write("after");
        output.Finish();
        EXPECT_TRUE(std::filesystem::is_symlink(Path(name)));
    }
    EXPECT_EQ(Read(Path("real")), "after");
    EXPECT_EQ(Read(Path("folder/new")), "after");
    EXPECT_FALSE(std::filesystem::is_symlink(Path("real")));
}

TEST_F(OutputOnUnix, KeepsTheModeOfTheFileItReplaces) {
    const auto modeOf = [this](const std::string &name) {
        struct stat status {};
        EXPECT_EQ(stat(Path(name).c_str(), &status), 0);
        return status.st_mode & 07777;
    };
    const mode_t mask = umask(027);
    for (const mode_t mode : {0640U, 0600U, 0666U, 0755U}) {
        chmod(Make("report", "before").c_str(), mode);
        Output output(File("report"));
        output.Finish();
        EXPECT_EQ(modeOf("report"), mode);
    }
    Output(File("new")).Finish();
    EXPECT_EQ(modeOf("new"), 0640U); // as the user's mask has it
    umask(mask);
}

// A file that cannot be looked at may be there: nothing is put in its place.
TEST_F(OutputOnUnix, RefusesAPlaceThatCannotBeLookedAt) {
    Make("file", "before");
    std::filesystem::create_symlink("loop", Path("loop"));
    for (const auto &[name, reason] : {std::pair("file/report", "Not a directory"),
                                       {"loop", "Too many levels of symbolic links"}})
        ExpectLine(RefusalOf([&, name = name] { Output{File(name)}; }, ExitCode::CannotReadOrWrite),
                   {"--output: " + Shown(Path(name)) + ": " + reason});
    EXPECT_TRUE(std::filesystem::is_symlink(Path("loop")));
}

TEST_F(OutputOnUnix, InAFolderFollowsNoLinkAndWaitsForNoPipe) {
    Make("precious", "mine");
    std::filesystem::create_directory(Path("d"));
    std::filesystem::create_symlink("../precious", Path("d/link"));
    ASSERT_EQ(mkfifo(Path("d/pipe").c_str(), 0600), 0);
    std::filesystem::create_directory(Path("d/folder"));
    for (const char *name : {"link", "pipe"}) {
        Output output(File(std::string("d/") + name), Output::Kind::InFolder);
        output.Write("report");
        output.Finish();
        EXPECT_TRUE(std::filesystem::is_regular_file(
            std::filesystem::symlink_status(Path(std::string("d/") + name))));
    }
    ExpectLine(RefusalOf([&] { Output(File("d/folder"), Output::Kind::InFolder); },
                         ExitCode::CannotReadOrWrite),
               {"--output-dir: ", "Is a directory"});
    EXPECT_EQ(Files(), (FileMap{{"precious", "mine"},
                                {"d/", ""},
                                {"d/folder/", ""},
                                {"d/link", "report"},
                                {"d/pipe", "report"}}));
}

TEST_F(OutputOnUnix, ToStandardOutputUnderAllItsNames) {
    for (const char *name : {"/dev/stdout", "/dev/fd/1", "/proc/self/fd/1"}) {
        testing::internal::CaptureStdout();
        Output output((QString(name)));
        output.Write("text\n");
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "text\n") << name;
    }
}

} // namespace
