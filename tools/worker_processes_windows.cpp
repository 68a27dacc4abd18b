#include "tools/worker_processes.h"

#include "tools/refusal.h"

#include <QByteArrayList>
#include <QUuid>

#include <array>
#include <cstdlib>
#include <string>
#include <type_traits>
#include <vector>

#include <io.h>
#include <windows.h>

using namespace Qt::StringLiterals;

// A channel is a pipe of messages. The parent reads from all of them at once: whatever comes is
// queued in one completion port, under the number of the worker. The end of a worker breaks its
// pipe. All workers are in a job of the system that ends them when the parent's handle of it is
// closed, however that happens.

namespace {

/// By which a worker learns what it has. The value is four numbers: which worker it is, its end
/// of the channel, the memory and how large that is.
constexpr char seatVariable[] = "ORRAVANE_REPORT_WORKER";

constexpr DWORD channelSize = 4096; // for more messages than are ever under way

struct CloseOne {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using OwnedHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, CloseOne>;

OwnedHandle Owned(HANDLE handle) {
    return OwnedHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

Refusal SystemFailure(const QString &what) {
    return Refusal(u"--jobs: %1 (error %2 of Windows)"_s.arg(what).arg(GetLastError()),
                   ExitCode::CannotReadOrWrite);
}

Refusal NotStarted() { return SystemFailure(u"a process cannot be started"_s); }

bool IsPipeBroken() {
    const DWORD error = GetLastError();
    return error == ERROR_BROKEN_PIPE || error == ERROR_NO_DATA ||
           error == ERROR_PIPE_NOT_CONNECTED;
}

/// The same open thing under a handle that a program may inherit. For one that is closed or
/// missing, the device that is always empty.
OwnedHandle Inheritable(HANDLE handle) {
    HANDLE copy = nullptr;
    if (handle != nullptr && handle != INVALID_HANDLE_VALUE &&
        DuplicateHandle(GetCurrentProcess(), handle, GetCurrentProcess(), &copy, 0, TRUE,
                        DUPLICATE_SAME_ACCESS) != 0)
        return Owned(copy);
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    return Owned(CreateFileW(L"NUL", GENERIC_READ | GENERIC_WRITE,
                             FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, OPEN_EXISTING, 0,
                             nullptr));
}

/// Both ends of a new channel; a program may inherit the worker's.
struct Channel {
    OwnedHandle parents;
    OwnedHandle workers;

    Channel() {
        const std::wstring name = L"\\\\.\\pipe\\orravane-report-" +
                                  QUuid::createUuid().toString(QUuid::WithoutBraces).toStdWString();
        parents = Owned(CreateNamedPipeW(
            name.c_str(), PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
            PIPE_TYPE_MESSAGE | PIPE_READMODE_MESSAGE | PIPE_REJECT_REMOTE_CLIENTS, 1, channelSize,
            channelSize, 0, nullptr));
        if (parents == nullptr)
            throw NotStarted();
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        workers = Owned(CreateFileW(name.c_str(), GENERIC_READ | GENERIC_WRITE, 0, &inherited,
                                    OPEN_EXISTING, 0, nullptr));
        DWORD mode = PIPE_READMODE_MESSAGE;
        if (workers == nullptr ||
            SetNamedPipeHandleState(workers.get(), &mode, nullptr, nullptr) == 0)
            throw NotStarted();
    }
};

/// What a process is started with, so that it inherits these handles and no others.
class StartupFacts {
public:
    StartupFacts(std::vector<HANDLE> inherited, HANDLE input, HANDLE output, HANDLE errors)
        : inherited_(std::move(inherited)) {
        SIZE_T size = 0;
        InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
        bytes_.resize(size);
        auto *const list = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(bytes_.data());
        if (InitializeProcThreadAttributeList(list, 1, 0, &size) == 0)
            throw NotStarted();
        facts.lpAttributeList = list;
        facts.StartupInfo.cb = sizeof facts;
        facts.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
        facts.StartupInfo.hStdInput = input;
        facts.StartupInfo.hStdOutput = output;
        facts.StartupInfo.hStdError = errors;
        if (UpdateProcThreadAttribute(list, 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, inherited_.data(),
                                      inherited_.size() * sizeof(HANDLE), nullptr, nullptr) == 0)
            throw NotStarted();
    }
    ~StartupFacts() { DeleteProcThreadAttributeList(facts.lpAttributeList); }
    StartupFacts(const StartupFacts &) = delete;
    StartupFacts &operator=(const StartupFacts &) = delete;

    STARTUPINFOEXW facts{};

private:
    std::vector<HANDLE> inherited_;
    std::vector<char> bytes_;
};

/// The file of this program.
std::wstring ThisProgram() {
    constexpr DWORD longest = 32'768;
    std::wstring name(longest, L'\0');
    name.resize(GetModuleFileNameW(nullptr, name.data(), longest));
    return name;
}

HANDLE HandleFrom(std::intptr_t number) { return reinterpret_cast<HANDLE>(number); }

} // namespace

SharedMemory::SharedMemory(std::size_t size) : size_(size) {
    const auto upper = static_cast<DWORD>(std::uint64_t{size} >> 32);
    const auto lower = static_cast<DWORD>(size);
    OwnedHandle memory(
        CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, upper, lower, nullptr));
    void *const data =
        memory != nullptr ? MapViewOfFile(memory.get(), FILE_MAP_ALL_ACCESS, 0, 0, size) : nullptr;
    if (data == nullptr)
        throw SystemFailure(u"there is not enough memory"_s);
    data_ = static_cast<char *>(data);
    handle_ = memory.release();
}

SharedMemory::~SharedMemory() {
    UnmapViewOfFile(data_);
    CloseHandle(handle_);
}

void ParentChannel::Send(const WorkerMessage &message) const {
    DWORD written = 0;
    if (WriteFile(HandleFrom(end_), &message, sizeof message, &written, nullptr) == 0)
        std::_Exit(EXIT_FAILURE);
}

WorkerMessage ParentChannel::Receive() const {
    WorkerMessage message;
    DWORD read = 0;
    if (ReadFile(HandleFrom(end_), &message, sizeof message, &read, nullptr) == 0 ||
        read != sizeof message)
        std::_Exit(EXIT_SUCCESS);
    return message;
}

std::optional<WorkerMessage> ParentChannel::ReceiveIfThere() const {
    DWORD there = 0;
    if (PeekNamedPipe(HandleFrom(end_), nullptr, 0, nullptr, &there, nullptr) == 0 || there == 0)
        return std::nullopt;
    return Receive();
}

class WorkerProcesses::Made {
public:
    Made(std::size_t count, HANDLE memory, std::size_t size, HANDLE output)
        : port_(CreateIoCompletionPort(INVALID_HANDLE_VALUE, nullptr, 0, 1)),
          job_(CreateJobObjectW(nullptr, nullptr)) {
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
        limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        if (port_ == nullptr || job_ == nullptr ||
            SetInformationJobObject(job_.get(), JobObjectExtendedLimitInformation, &limits,
                                    sizeof limits) == 0)
            throw NotStarted();
        try {
            while (workers_.size() < count)
                Start(memory, size, output);
        } catch (...) {
            EndAll();
            throw;
        }
    }
    ~Made() { EndAll(); }
    Made(const Made &) = delete;
    Made &operator=(const Made &) = delete;

    void Send(std::size_t worker, const WorkerMessage &message) {
        const HANDLE pipe = workers_[worker]->pipe.get();
        const OwnedHandle done(CreateEventW(nullptr, TRUE, FALSE, nullptr));
        OVERLAPPED writing{};
        // With this bit the end of the writing is told by the event alone and not by the port.
        writing.hEvent = HandleFrom(reinterpret_cast<std::intptr_t>(done.get()) | 1);
        DWORD written = 0;
        if (WriteFile(pipe, &message, sizeof message, nullptr, &writing) != 0 ||
            (GetLastError() == ERROR_IO_PENDING &&
             GetOverlappedResult(pipe, &writing, &written, TRUE) != 0))
            return;
        if (!IsPipeBroken())
            throw SystemFailure(u"a process cannot be told what to do"_s);
        HasDied(*workers_[worker]);
    }

    Received Receive() {
        for (const auto &worker : workers_)
            if (!worker->isListenedTo)
                HasDied(*worker);
        DWORD count = 0;
        ULONG_PTR worker = 0;
        OVERLAPPED *reading = nullptr;
        const bool good =
            GetQueuedCompletionStatus(port_.get(), &count, &worker, &reading, INFINITE) != 0;
        if (reading == nullptr)
            throw SystemFailure(u"the processes cannot be waited for"_s);
        Worker &sender = *workers_[worker];
        sender.isListenedTo = false;
        if (!good && !IsPipeBroken())
            throw SystemFailure(u"a process cannot be heard"_s);
        if (!good || count != sizeof sender.message)
            HasDied(sender);
        const Received received{worker, sender.message};
        ListenTo(sender);
        return received;
    }

private:
    struct Worker {
        OwnedHandle process;
        OwnedHandle pipe;
        bool isListenedTo = false; ///< whether the system writes into what follows
        OVERLAPPED reading{};
        WorkerMessage message;
    };

    void Start(HANDLE memory, std::size_t size, HANDLE output) {
        Channel channel;
        const OwnedHandle itsMemory = Inheritable(memory);
        const OwnedHandle input = Inheritable(nullptr);
        const OwnedHandle itsOutput = Inheritable(output);
        const OwnedHandle errors = Inheritable(GetStdHandle(STD_ERROR_HANDLE));
        StartupFacts startup(
            {channel.workers.get(), itsMemory.get(), input.get(), itsOutput.get(), errors.get()},
            input.get(), itsOutput.get(), errors.get());

        const auto number = [](HANDLE handle) {
            return QByteArray::number(qint64{reinterpret_cast<std::intptr_t>(handle)});
        };
        const QByteArrayList seat{QByteArray::number(quint64{workers_.size()}),
                                  number(channel.workers.get()), number(itsMemory.get()),
                                  QByteArray::number(quint64{size})};
        std::wstring commandLine = GetCommandLineW();
        PROCESS_INFORMATION made{};
        qputenv(seatVariable, seat.join(' '));
        const bool started =
            CreateProcessW(ThisProgram().c_str(), commandLine.data(), nullptr, nullptr, TRUE,
                           CREATE_SUSPENDED | EXTENDED_STARTUPINFO_PRESENT, nullptr, nullptr,
                           &startup.facts.StartupInfo, &made) != 0;
        const DWORD error = GetLastError();
        qunsetenv(seatVariable);
        SetLastError(error);
        if (!started)
            throw NotStarted();
        const OwnedHandle thread(made.hThread);
        auto worker = std::make_unique<Worker>();
        worker->process = OwnedHandle(made.hProcess);
        worker->pipe = std::move(channel.parents);
        if (AssignProcessToJobObject(job_.get(), made.hProcess) == 0 ||
            CreateIoCompletionPort(worker->pipe.get(), port_.get(), workers_.size(), 0) ==
                nullptr ||
            ResumeThread(made.hThread) == static_cast<DWORD>(-1)) {
            const DWORD reason = GetLastError();
            TerminateProcess(made.hProcess, EXIT_FAILURE);
            SetLastError(reason);
            throw NotStarted();
        }
        channel.workers.reset(); // or its end would not break the channel
        workers_.push_back(std::move(worker));
        ListenTo(*workers_.back());
    }

    /// Has the next message of a worker come to the port. It comes there also when it is there
    /// already. A worker that is gone is not listened to.
    static void ListenTo(Worker &worker) {
        worker.reading = {};
        worker.isListenedTo = ReadFile(worker.pipe.get(), &worker.message, sizeof worker.message,
                                       nullptr, &worker.reading) != 0 ||
                              GetLastError() == ERROR_IO_PENDING;
    }

    void EndAll() {
        TerminateJobObject(job_.get(), EXIT_FAILURE);
        for (const auto &worker : workers_) {
            WaitForSingleObject(worker->process.get(), INFINITE);
            if (!worker->isListenedTo)
                continue;
            // Until it has stopped, the system may write into the memory of the worker.
            CancelIoEx(worker->pipe.get(), &worker->reading);
            DWORD count = 0;
            GetOverlappedResult(worker->pipe.get(), &worker->reading, &count, TRUE);
        }
        workers_.clear();
    }

    [[noreturn]] static void HasDied(const Worker &worker) {
        DWORD code = 0;
        WaitForSingleObject(worker.process.get(), INFINITE);
        GetExitCodeProcess(worker.process.get(), &code);
        throw Refusal(
            u"--jobs: one of the processes has died (exit code %1); the output is not complete"_s
                .arg(code),
            ExitCode::CannotReadOrWrite);
    }

    OwnedHandle port_;
    OwnedHandle job_;
    std::vector<std::unique_ptr<Worker>> workers_;
};

WorkerProcesses::WorkerProcesses(std::size_t count, const SharedMemory &memory, int output,
                                 const Work & /*work*/)
    : made_(std::make_unique<Made>(count, memory.handle_, memory.size_,
                                   output < 0 ? nullptr : HandleFrom(_get_osfhandle(output)))) {}

WorkerProcesses::~WorkerProcesses() = default;

std::optional<WorkerSeat> WorkerProcesses::SeatOfThisProcess() {
    const QByteArrayList numbers = qgetenv(seatVariable).split(' ');
    if (numbers.size() != 4)
        return std::nullopt;
    qunsetenv(seatVariable);              // it is for nobody else
    SetConsoleCtrlHandler(nullptr, TRUE); // Ctrl+C ends the parent, and so this one
    void *const memory = MapViewOfFile(HandleFrom(numbers[2].toLongLong()), FILE_MAP_ALL_ACCESS, 0,
                                       0, numbers[3].toULongLong());
    if (memory == nullptr)
        throw SystemFailure(u"a process cannot read what it has to do"_s);
    return WorkerSeat{numbers[0].toULongLong(), static_cast<char *>(memory),
                      ParentChannel(numbers[1].toLongLong())};
}

void WorkerProcesses::Send(std::size_t worker, const WorkerMessage &message) {
    made_->Send(worker, message);
}

WorkerProcesses::Received WorkerProcesses::Receive() { return made_->Receive(); }
