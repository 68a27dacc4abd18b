#include "tools/output.h"

#include "report/flush_to_disk.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The temporary file that is being written, for the signal handler, which must not touch
/// anything more complicated. Empty while there is none.
std::array<char, 4096> unfinished{};

/// The signals that end the program from outside. Not those of a fault of its own, after which
/// nothing can be relied on.
constexpr std::array endingSignals{SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGTERM, SIGXCPU};

extern "C" void RemoveUnfinishedAndEnd(int signal) {
    if (unfinished.front() != '\0')
        unlink(unfinished.data());
    raise(signal); // the handler is gone after one call: this ends the program
}

/// Keeps the signals that end the program waiting for as long as it lives.
class SignalsWait {
public:
    SignalsWait() {
        sigset_t ending;
        sigemptyset(&ending);
        for (const int signal : endingSignals)
            sigaddset(&ending, signal);
        sigprocmask(SIG_BLOCK, &ending, &before_);
    }
    ~SignalsWait() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
    SignalsWait(const SignalsWait &) = delete;
    SignalsWait &operator=(const SignalsWait &) = delete;

private:
    sigset_t before_{};
};

/// From now on, a signal that ends the program removes `path` first. To be called while the
/// signals wait.
void RemoveOnSignal(const std::string &path) {
    [[maybe_unused]] static const bool installed = [] {
        for (const int signal : endingSignals) {
            struct sigaction action {};
            if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
                continue; // nohup and the like: it stays ignored
            action = {};
            action.sa_handler = RemoveUnfinishedAndEnd;
            action.sa_flags = static_cast<int>(SA_RESETHAND);
            sigaction(signal, &action, nullptr);
        }
        return true;
    }();
    std::memcpy(unfinished.data(), path.c_str(), path.size() + 1);
}

/// The number in a name such as "/dev/fd/3" that stands for an open descriptor.
std::optional<int> DescriptorNamed(std::string_view name) {
    if (name == "-" || name.empty() || name == "/dev/stdout")
        return STDOUT_FILENO;
    if (name == "/dev/stderr")
        return STDERR_FILENO;
    for (const std::string_view folder : {"/dev/fd/", "/proc/self/fd/"}) {
        if (!name.starts_with(folder))
            continue;
        int number = -1;
        const char *const end = name.data() + name.size();
        const auto [stop, error] = std::from_chars(name.data() + folder.size(), end, number);
        if (error == std::errc() && stop == end)
            return number;
    }
    return std::nullopt;
}

/// `name` with all links followed, also where the last one leads to nothing yet. Nothing, and
/// errno, where the system cannot say.
std::optional<std::string> BehindLinks(std::string name) {
    constexpr int most = 40; // more links than the system follows itself
    for (int followed = 0; followed < most; ++followed) {
        std::array<char, 4096> target{};
        const ssize_t length = readlink(name.c_str(), target.data(), target.size());
        if (length < 0 && errno != EINVAL && errno != ENOENT) // no link, and nothing there
            return std::nullopt;
        if (length <= 0 || static_cast<std::size_t>(length) == target.size())
            break;
        const std::string_view next(target.data(), static_cast<std::size_t>(length));
        const auto folder = name.rfind('/');
        if (next.front() == '/' || folder == std::string::npos)
            name = next;
        else
            name = name.substr(0, folder + 1).append(next);
    }
    return name;
}

} // namespace

Output::Name Output::NameOf(const QString &path) { return QFile::encodeName(path).toStdString(); }

void Output::OpenNamed(const Name &name) {
    if (const auto number = DescriptorNamed(name)) {
        descriptor_ = *number;
        if (fcntl(descriptor_, F_GETFD) < 0)
            Fail(errno);
        return;
    }
    struct stat present {};
    const bool isThere = stat(name.c_str(), &present) == 0;
    if (!isThere && errno != ENOENT)
        Fail(errno); // it may be there and no file
    if (isThere && !S_ISREG(present.st_mode) && !S_ISDIR(present.st_mode)) {
        descriptor_ = open(name.c_str(), O_WRONLY | O_CLOEXEC);
        if (descriptor_ < 0)
            Fail(errno);
        owned_ = true;
        return;
    }
    const auto file = BehindLinks(name);
    if (!file)
        Fail(errno);
    OpenBeside(*file);
}

Output::~Output() {
    if (!temporary_.empty()) {
        unlink(temporary_.c_str());
        unfinished.front() = '\0';
    }
    if (owned_ && descriptor_ >= 0)
        close(descriptor_);
}

void Output::OpenBeside(Name place) {
    struct stat present {};
    const bool replaces = lstat(place.c_str(), &present) == 0;
    if (!replaces && errno != ENOENT)
        Fail(errno); // it may be there, and its mode be lost
    if (replaces && S_ISDIR(present.st_mode))
        Fail(EISDIR);
    if (place.size() + 16 >= unfinished.size())
        Fail(ENAMETOOLONG);

    const auto folder = place.rfind('/');
    const std::string start = folder == std::string::npos ? "" : place.substr(0, folder + 1);
    std::string temporary = start + ".orravane-XXXXXX";
    {
        const SignalsWait untilItIsKnown; // or a file that nobody knows of would stay
        descriptor_ = mkostemp(temporary.data(), O_CLOEXEC);
        if (descriptor_ < 0)
            Fail(errno);
        RemoveOnSignal(temporary);
    }
    owned_ = true;
    temporary_ = std::move(temporary);
    place_ = std::move(place);

    // A temporary file is made for its owner alone. A new file gets what the user's mask
    // allows, and one that replaces another what that one had.
    mode_t mode = 0666;
    if (replaces && S_ISREG(present.st_mode)) {
        mode = present.st_mode & 07777;
    } else {
        const mode_t mask = umask(0);
        umask(mask);
        mode &= ~mask;
    }
    if (fchmod(descriptor_, mode) != 0)
        Fail(errno);
}

bool Output::IsTerminal() const { return isatty(descriptor_) == 1; }

void Output::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor_, bytes.data(), bytes.size());
        if (written >= 0)
            bytes.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            Fail(errno);
    }
}

void Output::Finish() {
    if (temporary_.empty())
        return;
    if (kind_ == Kind::Named)
        if (const std::error_code error = FlushToDisk(descriptor_))
            Fail(error.value());
    owned_ = false;
    if (close(descriptor_) != 0) // some file systems report a full disk only here
        Fail(errno);
    PutInPlace();
    unfinished.front() = '\0';
    temporary_.clear();
}

void Output::PutInPlace() {
    if (kind_ == Kind::NewInFolder) {
        // A link does not replace what has appeared meanwhile. Where there are no links the
        // look before this has to do.
        const bool linked = link(temporary_.c_str(), place_.c_str()) == 0;
        if (linked || errno == EEXIST) {
            unlink(temporary_.c_str());
            return;
        }
    }
    if (rename(temporary_.c_str(), place_.c_str()) != 0)
        Fail(errno);
}

void Output::LeaveUnfinishedToParent() { unfinished.front() = '\0'; }
