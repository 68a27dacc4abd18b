#pragma once

// Processes that work for this one. All that depends on the system is in here: making them,
// talking to them, ending them. One implementation for each kind of system.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

/// What parent and worker tell each other. What the fields mean is theirs to agree upon. It is
/// small, so that the few that are under way never fill the channel.
struct WorkerMessage {
    std::uint32_t kind = 0;
    std::uint32_t slot = 0;
    std::uint64_t first = 0;
    std::uint64_t second = 0;
};

/// Memory that this process shares with the workers it makes for it, zeros at first. On Unix, pages
/// that nobody touches take no space; Windows sets all of it aside at once.
class SharedMemory {
public:
    /// Throws Refusal with ExitCode::CannotReadOrWrite when there is none.
    explicit SharedMemory(std::size_t size);
    ~SharedMemory();
    SharedMemory(const SharedMemory &) = delete;
    SharedMemory &operator=(const SharedMemory &) = delete;

    char *Data() const { return data_; }

private:
    friend class WorkerProcesses;
    char *data_ = nullptr;
    std::size_t size_;
    void *handle_ = nullptr; ///< by which Windows hands it on
};

/// A worker's end of its channel.
class ParentChannel {
public:
    /// `end` is what the system names it by.
    explicit ParentChannel(std::intptr_t end) : end_(end) {}

    /// Ends the worker when the parent is gone.
    void Send(const WorkerMessage &message) const;

    /// The next message. Ends the worker when the parent is gone.
    WorkerMessage Receive() const;

    /// The next message if it is there already.
    std::optional<WorkerMessage> ReceiveIfThere() const;

private:
    std::intptr_t end_;
};

/// What a worker has from its parent.
struct WorkerSeat {
    std::size_t worker; ///< which of them it is, counted from 0
    char *memory;       ///< what they all share
    ParentChannel parent;
};

class WorkerProcesses {
public:
    /// What a worker does; it goes on until the process is ended.
    using Work = std::function<void(const WorkerSeat &seat)>;

    /// Makes `count` workers that share `memory`. Throws Refusal with ExitCode::CannotReadOrWrite
    /// when one cannot be made.
    ///
    /// Unix: they are copies of this process as it stands, and do `work`.
    ///
    /// Windows, which makes no copies: each is this program, started again with the same
    /// arguments, and has to take its seat by SeatOfThisProcess and do the same work. What is
    /// open here as `output` is its standard output; none for -1. Its standard input is empty.
    WorkerProcesses(std::size_t count, const SharedMemory &memory, int output, const Work &work);

    /// What a process has that was started to be a worker. Nothing in any other, and always on
    /// Unix. To be called once.
    static std::optional<WorkerSeat> SeatOfThisProcess();

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
    class Made; ///< the processes, as the system has them
    std::unique_ptr<Made> made_;
};
