#include "tests/tools/program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <stdexcept>
#include <utility>

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

extern char **environ;

namespace {

using Clock = std::chrono::steady_clock;

long long Milliseconds() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now().time_since_epoch())
        .count();
}

[[noreturn]] void Fail(const char *what) {
    throw std::runtime_error(std::string(what) + ": " + std::strerror(errno));
}

int Checked(int result, const char *what) {
    if (result < 0)
        Fail(what);
    return result;
}

void Close(int &fd) {
    if (fd >= 0)
        close(fd);
    fd = -1;
}

struct Pair {
    int reads = -1;
    int writes = -1;
};

Pair Pipe() {
    int ends[2];
    Checked(pipe2(ends, O_CLOEXEC), "pipe2");
    return {ends[0], ends[1]};
}

/// A terminal that hands on every byte as it was written.
Pair Terminal() {
    int master = -1;
    int slave = -1;
    termios raw{};
    cfmakeraw(&raw);
    Checked(openpty(&master, &slave, nullptr, &raw, nullptr), "openpty");
    fcntl(master, F_SETFD, FD_CLOEXEC);
    fcntl(slave, F_SETFD, FD_CLOEXEC);
    return {master, slave};
}

std::vector<std::string> Environment(const Surroundings &surroundings) {
    std::vector<std::string> entries;
    for (char **entry = environ; *entry != nullptr; ++entry) {
        const std::string_view text = *entry;
        if (!surroundings.environment.contains(std::string(text.substr(0, text.find('=')))))
            entries.emplace_back(text);
    }
    for (const auto &[name, value] : surroundings.environment)
        if (value)
            entries.push_back(name + '=' + *value);
    return entries;
}

std::vector<char *> Pointers(std::vector<std::string> &texts) {
    std::vector<char *> pointers;
    for (std::string &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// What `fd` has, appended to `bytes`. False at its end.
bool Take(int fd, std::string &bytes) {
    char buffer[65536];
    const ssize_t count = read(fd, buffer, sizeof buffer);
    if (count > 0)
        bytes.append(buffer, static_cast<std::size_t>(count));
    return count > 0 || (count < 0 && (errno == EINTR || errno == EAGAIN));
}

} // namespace

Program::Program(const Arguments &arguments, const Surroundings &surroundings)
    : deadline_(Milliseconds() + 100'000) {
    Arguments words = arguments;
    words.insert(words.begin(),
                 surroundings.program.empty() ? ORRAVANE_REPORT : surroundings.program);
    std::vector<std::string> variables = Environment(surroundings);
    const std::vector<char *> argv = Pointers(words);
    const std::vector<char *> envp = Pointers(variables);

    Pair in;
    if (surroundings.inputFile.empty())
        in = Pipe();
    else
        in.reads = Checked(open(surroundings.inputFile.c_str(), O_RDONLY | O_CLOEXEC), "open");
    Pair out;
    if (surroundings.outputFile.empty())
        out = Pipe();
    else
        out.writes = Checked(
            open(surroundings.outputFile.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666), "open");
    Pair err = surroundings.errorTerminal ? Terminal() : Pipe();

    std::signal(SIGPIPE, SIG_IGN); // a child that ended is seen in its exit code
    child_ = Checked(fork(), "fork");
    if (child_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL); // none outlives its test
        std::signal(SIGPIPE, SIG_DFL);
        if (surroundings.mostBytes) {
            const rlimit limit{static_cast<rlim_t>(*surroundings.mostBytes),
                               static_cast<rlim_t>(*surroundings.mostBytes)};
            setrlimit(RLIMIT_FSIZE, &limit);
            std::signal(SIGXFSZ, SIG_IGN); // the write fails instead
        }
        dup2(in.reads, STDIN_FILENO);
        dup2(out.writes, STDOUT_FILENO);
        dup2(err.writes, STDERR_FILENO);
        if (surroundings.noInput)
            close(STDIN_FILENO);
        if (surroundings.noOutput)
            close(STDOUT_FILENO);
        if (surroundings.noError)
            close(STDERR_FILENO);
        if (!surroundings.folder.empty() && chdir(surroundings.folder.c_str()) != 0)
            _exit(126);
        execve(argv.front(), argv.data(), envp.data());
        _exit(127);
    }
    Close(in.reads);
    Close(out.writes);
    Close(err.writes);
    in_ = in.writes;
    out_ = out.reads;
    err_ = err.reads;
    if (in_ >= 0)
        fcntl(in_, F_SETFL, O_NONBLOCK);
}

Program::~Program() {
    if (child_ > 0) {
        Kill();
        Finish();
    }
}

void Program::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(in_, bytes.data(), bytes.size());
        if (count < 0) {
            ADD_FAILURE() << "standard input: " << std::strerror(errno);
            return;
        }
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
}

std::string Program::ReadLine() { return TakeLine(outBytes_, out_); }

std::string Program::ReadErrorLine() { return TakeLine(errBytes_, err_); }

std::string Program::TakeLine(std::string &from, const int &fd) {
    while (from.find('\n') == std::string::npos && fd >= 0 && !Expired())
        Pump(nullptr, 100);
    const std::size_t end = std::min(from.find('\n'), from.size());
    const std::string line = from.substr(0, end);
    from.erase(0, end + 1);
    return line;
}

void Program::Kill() {
    if (child_ > 0)
        kill(child_, SIGKILL);
}

bool Program::Expired() {
    if (Milliseconds() < deadline_)
        return false;
    if (!killed_) {
        killed_ = true;
        ADD_FAILURE() << "the program hangs";
        Kill();
    }
    return true;
}

/// Moves what can be moved. False once both outputs are at their end and `input` is empty.
bool Program::Pump(std::string_view *input, int timeout) {
    const bool feeding = input != nullptr && !input->empty() && in_ >= 0;
    pollfd fds[3] = {{out_, POLLIN, 0}, {err_, POLLIN, 0}, {feeding ? in_ : -1, POLLOUT, 0}};
    if (out_ < 0 && err_ < 0 && !feeding)
        return false;
    if (poll(fds, 3, timeout) <= 0)
        return true;
    if (fds[0].revents != 0 && !Take(out_, outBytes_))
        Close(out_);
    if (fds[1].revents != 0 && !Take(err_, errBytes_))
        Close(err_);
    if (feeding && fds[2].revents != 0) {
        const ssize_t count = write(in_, input->data(), input->size());
        if (count > 0)
            input->remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EAGAIN && errno != EINTR)
            Close(in_); // it reads no further
    }
    return true;
}

Finished Program::Finish(std::string_view input) {
    while (!input.empty() && in_ >= 0 && !Expired())
        Pump(&input, 100);
    Close(in_);
    bool open = true;
    while (open) {
        Expired(); // kills it, which ends its outputs
        open = Pump(nullptr, 100);
    }
    int status = 0;
    while (waitpid(child_, &status, 0) < 0 && errno == EINTR) {
    }
    child_ = -1;

    Finished finished;
    if (WIFEXITED(status))
        finished.exitCode = WEXITSTATUS(status);
    else
        finished.signal = WTERMSIG(status);
    finished.out = std::exchange(outBytes_, {});
    finished.err = std::exchange(errBytes_, {});
    return finished;
}

Finished RunProgram(const Arguments &arguments, std::string_view input,
                    const Surroundings &surroundings) {
    return Program(arguments, surroundings).Finish(input);
}
