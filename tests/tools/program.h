#pragma once

// The built orravane-report as a child process of a test: its arguments and surroundings
// going in, its bytes, its exit code and how it ended coming out.

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <sys/types.h>

using Arguments = std::vector<std::string>;

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
    std::string folder;            ///< the working folder; empty for that of the test
    bool errorTerminal = false;    ///< standard error is a terminal
    bool noInput = false;          ///< standard input is closed
    bool noOutput = false;         ///< standard output is closed
    bool noError = false;          ///< standard error is closed
    std::optional<long> mostBytes; ///< limit on the size of files, met by an error
    std::string program;           ///< empty for orravane-report
};

/// A child that runs until Finish, which the destructor makes up for. A child that hangs is
/// killed after a time far beyond all that it needs.
class Program {
public:
    explicit Program(const Arguments &arguments, const Surroundings &surroundings = {});
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    /// Writes all of `bytes` to standard input, which must have room for them.
    void Write(std::string_view bytes);

    /// The next line of standard output without its line break. At the end of the output
    /// or of the child's time, what there is.
    std::string ReadLine();

    /// The same of standard error.
    std::string ReadErrorLine();

    /// Ends the child at once.
    void Kill();

    /// Writes `input`, closes standard input, reads both outputs to their end and waits.
    Finished Finish(std::string_view input = {});

private:
    bool Pump(std::string_view *input, int timeout);
    std::string TakeLine(std::string &from, const int &fd);
    bool Expired();

    pid_t child_ = -1;
    int in_ = -1;
    int out_ = -1;
    int err_ = -1;
    bool killed_ = false;
    std::string outBytes_;
    std::string errBytes_;
    long long deadline_;
};

/// One run from start to end.
Finished RunProgram(const Arguments &arguments, std::string_view input = {},
                    const Surroundings &surroundings = {});
