#include "tests/tools/program.h"

#include <gtest/gtest.h>

#include <chrono>

#include <fcntl.h>
#include <pty.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <termios.h>
#include <unistd.h>

namespace {

constexpr std::chrono::milliseconds patience{100'000};

/// In the child, before it becomes the program.
void Prepare(const Surroundings &surroundings, int terminal) {
    prctl(PR_SET_PDEATHSIG, SIGKILL); // none outlives its test
    if (surroundings.mostBytes) {
        const rlimit limit{static_cast<rlim_t>(*surroundings.mostBytes),
                           static_cast<rlim_t>(*surroundings.mostBytes)};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none); // tests end programs by signals on purpose
    if (terminal >= 0)
        dup2(terminal, STDERR_FILENO);
    if (surroundings.noInput)
        close(STDIN_FILENO);
    if (surroundings.noOutput)
        close(STDOUT_FILENO);
    if (surroundings.noError)
        close(STDERR_FILENO);
}

} // namespace

Program::Program(const Arguments &arguments, const Surroundings &surroundings) {
    QStringList words;
    for (const std::string &argument : arguments)
        words << QString::fromStdString(argument);

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto &[name, value] : surroundings.environment) {
        if (value)
            environment.insert(QString::fromStdString(name), QString::fromStdString(*value));
        else
            environment.remove(QString::fromStdString(name));
    }
    process_.setProcessEnvironment(environment);
    if (!surroundings.inputFile.empty())
        process_.setStandardInputFile(QString::fromStdString(surroundings.inputFile));
    if (!surroundings.outputFile.empty())
        process_.setStandardOutputFile(QString::fromStdString(surroundings.outputFile));

    int childsEnd = -1;
    if (surroundings.errorTerminal) {
        termios raw{}; // hands on every byte as it was written
        cfmakeraw(&raw);
        winsize size{};
        size.ws_col = static_cast<unsigned short>(surroundings.terminalColumns);
        EXPECT_EQ(openpty(&terminal_, &childsEnd, nullptr, &raw, &size), 0);
        fcntl(terminal_, F_SETFD, FD_CLOEXEC);
        fcntl(terminal_, F_SETFL, O_NONBLOCK);
    }
    process_.setChildProcessModifier([=] { Prepare(surroundings, childsEnd); });
    process_.start(surroundings.program.empty() ? QString(ORRAVANE_REPORT)
                                                : QString::fromStdString(surroundings.program),
                   words);
    EXPECT_TRUE(process_.waitForStarted());
    if (childsEnd >= 0)
        close(childsEnd);
}

Program::~Program() {
    if (process_.state() != QProcess::NotRunning) {
        Kill();
        process_.waitForFinished();
    }
    if (terminal_ >= 0)
        close(terminal_);
}

void Program::Write(std::string_view bytes) {
    process_.write(bytes.data(), static_cast<qint64>(bytes.size()));
    while (process_.bytesToWrite() > 0 && process_.waitForBytesWritten()) {
    }
}

std::string Program::ReadLine(QProcess::ProcessChannel channel) {
    process_.setReadChannel(channel);
    while (!process_.canReadLine() && process_.waitForReadyRead(patience.count())) {
    }
    QByteArray line = process_.readLine();
    if (line.endsWith('\n'))
        line.chop(1);
    return line.toStdString();
}

void Program::ReadTerminal() {
    char bytes[4096];
    for (ssize_t count = 0; (count = read(terminal_, bytes, sizeof bytes)) > 0;)
        screen_.append(bytes, static_cast<std::size_t>(count));
}

Finished Program::Finish(std::string_view input) {
    if (!input.empty())
        process_.write(input.data(), static_cast<qint64>(input.size()));
    process_.closeWriteChannel();
    const auto end = std::chrono::steady_clock::now() + patience;
    while (process_.state() != QProcess::NotRunning && !process_.waitForFinished(20)) {
        if (terminal_ >= 0)
            ReadTerminal(); // else the child waits for room
        if (std::chrono::steady_clock::now() > end) {
            ADD_FAILURE() << "the program hangs";
            Kill();
        }
    }
    if (terminal_ >= 0)
        ReadTerminal();

    Finished finished;
    (process_.exitStatus() == QProcess::NormalExit ? finished.exitCode : finished.signal) =
        process_.exitCode();
    finished.out = process_.readAllStandardOutput().toStdString();
    finished.err = terminal_ >= 0 ? screen_ : process_.readAllStandardError().toStdString();
    return finished;
}

Finished RunProgram(const Arguments &arguments, std::string_view input,
                    const Surroundings &surroundings) {
    return Program(arguments, surroundings).Finish(input);
}

Finished RunShell(const std::string &script) {
    Surroundings shell;
    shell.program = "/bin/sh";
    return RunProgram({"-c", script, ORRAVANE_REPORT}, {}, shell);
}
