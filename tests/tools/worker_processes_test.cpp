// Processes that work for this one, by the same tests on every system.

#include "tools/worker_processes.h"

#include "tests/tools/complaint.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <csignal>
#endif

namespace {

enum Kind : std::uint32_t { Echo, EchoTwice, TellId, Die };

constexpr int codeOfTheDead = 7;
constexpr std::size_t workers = 3;

void Answer(const WorkerSeat &seat, WorkerMessage message) {
    if (message.kind == Die)
        std::_Exit(codeOfTheDead);
    seat.memory[seat.worker] = static_cast<char>(message.slot);
    message.second = seat.worker;
    if (message.kind == TellId)
        message.first = static_cast<std::uint64_t>(QCoreApplication::applicationPid());
    seat.parent.Send(message);
    if (message.kind == EchoTwice)
        seat.parent.Send(message);
}

/// Whether there is a process with this id. One that has ended counts until somebody has seen its
/// end.
bool IsThere(std::uint64_t id) {
#ifdef Q_OS_WIN
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(id));
    if (process == nullptr)
        return false;
    const bool isRunning = WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
    CloseHandle(process);
    return isRunning;
#else
    return kill(static_cast<pid_t>(id), 0) == 0;
#endif
}

/// What a worker of these tests does: it puts what it is told into the memory, and says it back.
[[noreturn]] void Work(const WorkerSeat &seat) {
    for (;;) {
        Answer(seat, seat.parent.Receive());
        while (const auto another = seat.parent.ReceiveIfThere())
            Answer(seat, *another);
    }
}

TEST(WorkerProcesses, AnswerAndShareTheMemory) {
    const SharedMemory memory(100'000'000);
    WorkerProcesses processes(workers, memory, -1, Work);
    for (std::uint32_t round = 1; round < 50; ++round) {
        for (std::size_t worker = 0; worker < workers; ++worker)
            processes.Send(worker, {Echo, round, 5'000'000'000, 0});
        std::vector<std::size_t> heard;
        for (std::size_t count = 0; count < workers; ++count) {
            const auto [worker, message] = processes.Receive();
            EXPECT_EQ(message.slot, round);
            EXPECT_EQ(message.first, 5'000'000'000U);
            EXPECT_EQ(message.second, worker);
            EXPECT_EQ(memory.Data()[worker], static_cast<char>(round));
            heard.push_back(worker);
        }
        std::ranges::sort(heard);
        EXPECT_EQ(heard, (std::vector<std::size_t>{0, 1, 2}));
    }
    EXPECT_EQ(memory.Data()[workers], '\0'); // nobody's
}

TEST(WorkerProcesses, LoseNoMessageThatWaits) {
    const SharedMemory memory(workers);
    WorkerProcesses processes(1, memory, -1, Work);
    for (std::uint32_t slot = 0; slot < 20; ++slot)
        processes.Send(0, {Echo, slot, 0, 0});
    for (std::uint32_t slot = 0; slot < 20; ++slot)
        EXPECT_EQ(processes.Receive().message.slot, slot);
    processes.Send(0, {EchoTwice, 21, 0, 0});
    for (int count = 0; count < 2; ++count)
        EXPECT_EQ(processes.Receive().message.slot, 21U);
}

TEST(WorkerProcesses, TellThatOneHasDied) {
    for (const std::size_t dead : {0U, 2U}) {
        const SharedMemory memory(workers);
        WorkerProcesses processes(workers, memory, -1, Work);
        processes.Send(dead, {Die, 0, 0, 0});
        ExpectLine(RefusalOf([&] { processes.Receive(); }, ExitCode::CannotReadOrWrite),
                   {"--jobs: one of the processes has died (exit code 7)"});
    }
}

TEST(WorkerProcesses, EndWhileTheyWaitAndWhileTheyTalk) {
    const SharedMemory memory(workers);
    std::vector<std::uint64_t> ids;
    {
        WorkerProcesses processes(workers, memory, -1, Work);
        for (std::size_t worker = 0; worker < workers; ++worker) {
            processes.Send(worker, {TellId, 0, 0, 0});
            ids.push_back(processes.Receive().message.first);
            EXPECT_TRUE(IsThere(ids.back()));
        }
        processes.Send(1, {EchoTwice, 1, 0, 0});
    }
    for (const std::uint64_t id : ids)
        EXPECT_FALSE(IsThere(id)) << id;
}

} // namespace

int main(int argc, char *argv[]) {
    if (const auto seat = WorkerProcesses::SeatOfThisProcess())
        Work(*seat);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
