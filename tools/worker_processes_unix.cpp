#include "tools/worker_processes.h"

#include "tools/output.h"
#include "tools/refusal.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

Refusal Failure(const QString &what) {
    return Refusal(u"--jobs: %1 (%2)"_s.arg(what, QString::fromLocal8Bit(std::strerror(errno))),
                   ExitCode::CannotReadOrWrite);
}

bool SendAll(int descriptor, const WorkerMessage &message) {
    ssize_t sent = 0;
    do
        sent = send(descriptor, &message, sizeof message, MSG_NOSIGNAL);
    while (sent < 0 && errno == EINTR);
    return sent == sizeof message;
}

/// Returns false, with errno, when the other end is gone, or, without waiting, when nothing is
/// there.
bool ReceiveAll(int descriptor, WorkerMessage &message, bool wait) {
    ssize_t received = 0;
    do
        received = recv(descriptor, &message, sizeof message, wait ? 0 : MSG_DONTWAIT);
    while (received < 0 && errno == EINTR);
    if (received == 0)
        errno = ECONNRESET;
    return received == sizeof message;
}

/// Whether errno says that the other end is gone. Otherwise it is there, and waiting for its end
/// would take for ever.
bool IsOtherEndGone() { return errno == EPIPE || errno == ECONNRESET; }

int Descriptor(std::intptr_t end) { return static_cast<int>(end); }

} // namespace

SharedMemory::SharedMemory(std::size_t size) : size_(size) {
    void *const memory = mmap(nullptr, size, PROT_READ | PROT_WRITE,
                              MAP_SHARED | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED)
        throw Failure(u"there is not enough memory"_s);
    data_ = static_cast<char *>(memory);
}

SharedMemory::~SharedMemory() { munmap(data_, size_); }

void ParentChannel::Send(const WorkerMessage &message) const {
    if (!SendAll(Descriptor(end_), message))
        _exit(EXIT_FAILURE);
}

WorkerMessage ParentChannel::Receive() const {
    WorkerMessage message;
    if (!ReceiveAll(Descriptor(end_), message, true))
        _exit(EXIT_SUCCESS);
    return message;
}

std::optional<WorkerMessage> ParentChannel::ReceiveIfThere() const {
    WorkerMessage message;
    return ReceiveAll(Descriptor(end_), message, false) ? std::optional(message) : std::nullopt;
}

class WorkerProcesses::Made {
public:
    Made(std::size_t count, char *memory, const Work &work) {
        try {
            for (std::size_t made = 0; made < count; ++made)
                Start(memory, work);
        } catch (...) {
            EndAll();
            throw;
        }
    }
    ~Made() { EndAll(); }
    Made(const Made &) = delete;
    Made &operator=(const Made &) = delete;

    void Send(std::size_t worker, const WorkerMessage &message);
    Received Receive();

private:
    struct Worker {
        pid_t process;
        int descriptor;
    };

    void Start(char *memory, const Work &work);
    void EndAll();
    [[noreturn]] void HasDied(Worker &worker);

    std::vector<Worker> workers_;
    std::size_t next_ = 0; ///< whom to listen to first
};

void WorkerProcesses::Made::Start(char *memory, const Work &work) {
    // Whole messages, as they were sent.
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0)
        throw Failure(u"a process cannot be started"_s);
    const pid_t parent = getpid();
    const pid_t process = fork();
    if (process < 0) {
        const int error = errno;
        close(ends[0]);
        close(ends[1]);
        errno = error;
        throw Failure(u"a process cannot be started"_s);
    }
    if (process != 0) {
        close(ends[1]);
        workers_.push_back({process, ends[0]});
        return;
    }

    // The worker. It ends with its parent, by a signal that lets it remove what is unfinished.
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent)
        _exit(EXIT_FAILURE);
    Output::LeaveUnfinishedToParent();
    close(ends[0]);
    for (const Worker &other : workers_)
        close(other.descriptor);
    try {
        work({workers_.size(), memory, ParentChannel(ends[1])});
    } catch (...) {
        std::abort(); // the parent sees that it has died
    }
    _exit(EXIT_SUCCESS);
}

void WorkerProcesses::Made::EndAll() {
    for (const Worker &worker : workers_) {
        close(worker.descriptor);
        if (worker.process > 0) {
            kill(worker.process, SIGTERM);
            kill(worker.process, SIGCONT); // one that is stopped would end only then
        }
    }
    for (const Worker &worker : workers_)
        while (worker.process > 0 && waitpid(worker.process, nullptr, 0) < 0 && errno == EINTR) {
        }
    workers_.clear();
}

void WorkerProcesses::Made::HasDied(Worker &worker) {
    int status = 0;
    while (waitpid(worker.process, &status, 0) < 0 && errno == EINTR) {
    }
    worker.process = 0;
    const int signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    if (signal == SIGPIPE) {
        EndAll();
        raise(SIGPIPE);
    }
    throw Refusal(
        u"--jobs: one of the processes has died (%1); the output is not complete"_s.arg(
            signal != 0 ? u"signal %1"_s.arg(signal) : u"exit code %1"_s.arg(WEXITSTATUS(status))),
        ExitCode::CannotReadOrWrite);
}

void WorkerProcesses::Made::Send(std::size_t worker, const WorkerMessage &message) {
    if (SendAll(workers_[worker].descriptor, message))
        return;
    if (!IsOtherEndGone())
        throw Failure(u"a process cannot be told what to do"_s);
    HasDied(workers_[worker]);
}

WorkerProcesses::Received WorkerProcesses::Made::Receive() {
    std::vector<pollfd> ends;
    ends.reserve(workers_.size());
    for (const Worker &worker : workers_)
        ends.push_back({worker.descriptor, POLLIN, 0});
    while (poll(ends.data(), ends.size(), -1) < 0)
        if (errno != EINTR)
            throw Failure(u"the processes cannot be waited for"_s);
    for (std::size_t count = 0; count < ends.size(); ++count) {
        const std::size_t worker = next_++ % ends.size();
        if (ends[worker].revents == 0)
            continue;
        WorkerMessage message;
        if (ReceiveAll(workers_[worker].descriptor, message, true))
            return {worker, message};
        if (!IsOtherEndGone())
            throw Failure(u"a process cannot be heard"_s);
        HasDied(workers_[worker]);
    }
    throw Failure(u"the processes cannot be waited for"_s);
}

WorkerProcesses::WorkerProcesses(std::size_t count, const SharedMemory &memory, int /*output*/,
                                 const Work &work)
    : made_(std::make_unique<Made>(count, memory.Data(), work)) {}

WorkerProcesses::~WorkerProcesses() = default;

std::optional<WorkerSeat> WorkerProcesses::SeatOfThisProcess() { return std::nullopt; }

void WorkerProcesses::Send(std::size_t worker, const WorkerMessage &message) {
    made_->Send(worker, message);
}

WorkerProcesses::Received WorkerProcesses::Receive() { return made_->Receive(); }
