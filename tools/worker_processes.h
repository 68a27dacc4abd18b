#pragma once

// Processes that work for this one. All that depends on the system is in here: making them,
// talking to them, ending them.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

/// What parent and worker tell each other. What the fields mean is theirs to agree upon. It is
/// small, so that the few that are under way never fill the channel.
struct WorkerMessage {
    std::uint32_t kind = 0;
    std::uint32_t slot = 0;
    std::uint64_t first = 0;
    std::uint64_t second = 0;
};

/// Memory that this process shares with the workers it makes afterwards. Pages that nobody
/// touches take no space.
class SharedMemory {
public:
    /// Throws Refusal with ExitCode::CannotReadOrWrite when there is none.
    explicit SharedMemory(std::size_t size);
    ~SharedMemory();
    SharedMemory(const SharedMemory &) = delete;
    SharedMemory &operator=(const SharedMemory &) = delete;

    char *Data() const { return data_; }

private:
    char *data_ = nullptr;
    std::size_t size_;
};

/// A worker's end of its channel.
class ParentChannel {
public:
    explicit ParentChannel(int descriptor) : descriptor_(descriptor) {}

    void Send(const WorkerMessage &message) const;

    /// The next message. Ends the worker when the parent is gone.
    WorkerMessage Receive() const;

    /// The next message if it is there already.
    std::optional<WorkerMessage> ReceiveIfThere() const;

private:
    int descriptor_;
};

class WorkerProcesses {
public:
    /// What a worker does; it goes on until the process is ended.
    using Work = std::function<void(std::size_t worker, ParentChannel &parent)>;

    /// Makes `count` workers, copies of this process as it stands. Throws Refusal with
    /// ExitCode::CannotReadOrWrite when one cannot be made.
    WorkerProcesses(std::size_t count, const Work &work);

    /// Ends all workers. They end too when this process ends in any other way.
    ~WorkerProcesses();
    WorkerProcesses(const WorkerProcesses &) = delete;
    WorkerProcesses &operator=(const WorkerProcesses &) = delete;

    struct Received {
        std::size_t worker;
        WorkerMessage message;
    };

    /// Both throw Refusal with ExitCode::CannotReadOrWrite when a worker has died. A worker
    /// that SIGPIPE has ended, since nobody reads the output, ends this process likewise.
    void Send(std::size_t worker, const WorkerMessage &message);
    Received Receive();

private:
    struct Worker {
        int process;
        int descriptor;
    };

    void Start(const Work &work);
    void EndAll();
    [[noreturn]] void HasDied(Worker &worker);

    std::vector<Worker> workers_;
    std::size_t next_ = 0; ///< whom to listen to first
};
