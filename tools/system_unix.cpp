#include "tools/system.h"

#include <QFile>

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

StandardStreams::StandardStreams() {
    // With /dev/null, opened in the direction in which the stream is not used.
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) < 0 && errno == EBADF)
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    // Where files may not grow further (ulimit -f), writing fails and the reason can be told.
    std::signal(SIGXFSZ, SIG_IGN);
}

StandardStreams::~StandardStreams() = default;

bool ArgumentsAreBytes() { return true; }

bool IsTerminal(int descriptor) {
    const QByteArray kind = qgetenv("TERM");
    return isatty(descriptor) == 1 && !kind.isEmpty() && kind != "dumb";
}

int TerminalColumns() {
    winsize size{};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

void WriteToStandardError(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(STDERR_FILENO, bytes.data(), bytes.size());
        if (written >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            return;
    }
}

std::optional<InputFile::Opened> InputFile::Open(const QString &name) {
    const int descriptor = open(QFile::encodeName(name).constData(), O_RDONLY | O_CLOEXEC);
    struct stat status {};
    if (descriptor < 0)
        return std::nullopt;
    if (fstat(descriptor, &status) != 0) {
        const int error = errno;
        close(descriptor);
        errno = error;
        return std::nullopt;
    }
    return Opened{descriptor, S_ISDIR(status.st_mode),
                  S_ISREG(status.st_mode) ? status.st_size : 0};
}

long long InputFile::Read(int descriptor, char *bytes, std::size_t most) {
    ssize_t count = 0;
    do
        count = read(descriptor, bytes, most);
    while (count < 0 && errno == EINTR);
    return count;
}

void InputFile::Close(int descriptor) { close(descriptor); }
