#pragma once

// The built orravane-report as a child process of a test: its arguments and surroundings
// going in, its bytes, its exit code and how it ended coming out.

#include "tests/tools/arguments.h"
#include "tests/tools/complaint.h"

#include <QProcess>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <csignal>
#include <sys/types.h>

/// How a child ended and what it wrote.
struct Finished {
    int exitCode = -1; ///< -1 when a signal ended it
    int signal = 0;    ///< the signal that ended it, or 0
    std::string out;
    std::string err;
};

/// What surrounds a child. Where nothing is said it has pipes for its three streams and
/// the environment of the test.
struct Surroundings {
    std::map<std::string, std::optional<std::string>> environment; ///< no value: taken away
    std::string inputFile;                                         ///< opened as standard input
    std::string outputFile;        ///< opened as standard output, not captured
    bool errorTerminal = false;    ///< standard error is a terminal
    int terminalColumns = 0;       ///< how wide that is; 0: it does not say
    bool noInput = false;          ///< standard input is closed
    bool noOutput = false;         ///< standard output is closed
    bool noError = false;          ///< standard error is closed
    std::optional<long> mostBytes; ///< limit on the size of files
    std::string program;           ///< empty for orravane-report
};

/// A child that runs until Finish, or until the destructor kills it. A child that hangs is
/// killed after a time far beyond all that it needs, and fails the test.
class Program {
public:
    explicit Program(const Arguments &arguments, const Surroundings &surroundings = {});
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    void Write(std::string_view bytes);

    /// The next line of standard output without its line break. At the end of the output,
    /// what there is.
    std::string ReadLine() { return ReadLine(QProcess::StandardOutput); }

    /// The same of standard error.
    std::string ReadErrorLine() { return ReadLine(QProcess::StandardError); }

    /// Ends the child at once.
    void Kill() { process_.kill(); }

    pid_t Id() const { return static_cast<pid_t>(process_.processId()); }

    void Signal(int signal) { kill(static_cast<pid_t>(process_.processId()), signal); }

    /// Writes `input`, closes standard input, reads both outputs to their end and waits.
    Finished Finish(std::string_view input = {});

private:
    std::string ReadLine(QProcess::ProcessChannel channel);
    void ReadTerminal();

    QProcess process_;
    int terminal_ = -1;  ///< the test's end of the terminal
    std::string screen_; ///< what has come through it
};

/// A script of the shell, in which "$0" is orravane-report.
Finished RunShell(const std::string &script);

/// One run from start to end.
Finished RunProgram(const Arguments &arguments, std::string_view input = {},
                    const Surroundings &surroundings = {});

/// Expects that the program refused its input: exit code 2, nothing written, one line.
inline void ExpectRefused(const Finished &run, const std::vector<std::string> &parts) {
    EXPECT_EQ(run.exitCode, 2) << "signal " << run.signal;
    EXPECT_EQ(run.out, "");
    ExpectOneLine(run.err, parts);
}

/// Expects that the program could not read or write: exit code 3, one line.
inline void ExpectFailed(const Finished &run, const std::vector<std::string> &parts) {
    EXPECT_EQ(run.exitCode, 3) << "signal " << run.signal;
    ExpectOneLine(run.err, parts);
}

/// Expects success without a word.
inline void ExpectGood(const Finished &run) {
    EXPECT_EQ(run.exitCode, 0) << "signal " << run.signal;
    EXPECT_EQ(run.err, "");
}
