// The processes of --jobs as the system sees them: they end with the one that was started, and
// when one dies it is told.

#include "tests/support/becomes.h"
#include "tests/tools/batch_answers.h"
#include "tests/tools/folder_test.h"
#include "tests/tools/program.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sstream>

#include <unistd.h>

namespace {

std::string People(int count) {
    std::string people;
    for (int index = 0; index < count; ++index)
        people += R"({"first":"Ann","last":"Lee","month":3,"day":7,"year":1990})"
                  "\n";
    return people;
}

/// The processes that `parent` has made.
std::vector<pid_t> ChildrenOf(pid_t parent) {
    const std::string id = std::to_string(parent);
    std::ifstream file("/proc/" + id + "/task/" + id + "/children");
    std::vector<pid_t> children;
    for (pid_t child = 0; file >> child;)
        children.push_back(child);
    return children;
}

bool IsGone(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string line;
    std::getline(file, line);
    const auto behindName = line.rfind(')');
    return behindName == std::string::npos || line[behindName + 2] == 'Z';
}

class BatchProcesses : public FolderTest {
protected:
    /// A batch of two processes that waits for more input.
    static Arguments Waiting(const Arguments &more) {
        return Arguments{"--batch", "-", "--jobs", "2"} + more;
    }

    static std::vector<pid_t> TwoChildren(const Program &program) {
        std::vector<pid_t> children;
        EXPECT_TRUE(Becomes([&] {
            children = ChildrenOf(program.Id());
            return children.size() == 2;
        }));
        return children;
    }
};

TEST_F(BatchProcesses, ReadStandardInputAndEndWithTheWork) {
    const Finished run = RunProgram(Waiting({"--numbers"}), People(5000) + "{}\n");
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(Lines(run.out).size(), 5001U);
    ExpectOneLine(run.err, {"line 5001: first is missing"});
}

TEST_F(BatchProcesses, EndWithTheirParentAndLeaveNothing) {
    for (const Arguments &where : {Arguments{"--output", Path("out")},
                                   Arguments{"--output-dir", Path("d")}, Arguments{"--numbers"}})
        for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGKILL}) {
            Program program(Waiting(where));
            const std::vector<pid_t> children = TwoChildren(program);
            program.Write(People(300));
            program.Signal(signal);
            const Finished run = program.Finish();
            EXPECT_EQ(run.signal, signal);
            for (const pid_t child : children)
                EXPECT_TRUE(Becomes([=] { return IsGone(child); })) << child;
            for (const auto &[name, bytes] : Files())
                // Nobody can remove the file of one that was killed.
                EXPECT_TRUE(signal == SIGKILL || name.find(".orravane-") == std::string::npos)
                    << name << " after " << signal;
            for (const auto &entry : std::filesystem::directory_iterator(Path("")))
                std::filesystem::remove_all(entry);
        }
}

TEST_F(BatchProcesses, TellThatOneHasDied) {
    for (const int signal : {SIGKILL, SIGUSR1}) {
        Make("out", "before");
        Program program(Waiting({"--output", Path("out")}));
        const std::vector<pid_t> children = TwoChildren(program);
        ASSERT_EQ(kill(children.front(), signal), 0);
        const Finished run = program.Finish(People(1000));
        ExpectFailed(
            run, {"--jobs: one of the processes has died (signal " + std::to_string(signal) + ")"});
        EXPECT_EQ(Files(), (FileMap{{"out", "before"}}));
        EXPECT_TRUE(Becomes([&] { return IsGone(children.back()); }));
    }
}

// Also where another one is stopped, which no signal but SIGKILL ends as it is.
TEST_F(BatchProcesses, EndWhereOneIsStopped) {
    Program program(Waiting({"--numbers"}));
    const std::vector<pid_t> children = TwoChildren(program);
    ASSERT_EQ(kill(children.front(), SIGSTOP), 0);
    ASSERT_EQ(kill(children.back(), SIGKILL), 0);
    ExpectFailed(program.Finish(People(1000)),
                 {"--jobs: one of the processes has died (signal 9)"});
    EXPECT_TRUE(Becomes([&] { return IsGone(children.front()); }));
}

// Who reads no more ends them all, without a word.
TEST_F(BatchProcesses, EndWithTheirReader) {
    Make("people", People(20'000));
    const Finished run =
        RunShell("{ \"$0\" --batch '" + Path("people") + "' --jobs 2; echo $? >&2; } | head -n 1");
    EXPECT_EQ(Lines(run.out).size(), 1U);
    EXPECT_EQ(run.err, std::to_string(128 + SIGPIPE) + '\n');
}

} // namespace
