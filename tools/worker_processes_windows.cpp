#include "tools/worker_processes.h"

#include "tools/refusal.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

// A worker is a copy of its parent as it stands, and Windows makes no copies of processes. So
// the tool works in one process there, and says so to who asks for more.

namespace {

Refusal NotHere() {
    return Refusal(
        u"--jobs: on Windows the work is done in one process; leave it out, or give 1"_s);
}

} // namespace

SharedMemory::SharedMemory(std::size_t size) : size_(size) { throw NotHere(); }

SharedMemory::~SharedMemory() = default;

void ParentChannel::Send(const WorkerMessage &) const { std::abort(); }

WorkerMessage ParentChannel::Receive() const { std::abort(); }

std::optional<WorkerMessage> ParentChannel::ReceiveIfThere() const { std::abort(); }

WorkerProcesses::WorkerProcesses(std::size_t, const Work &) { throw NotHere(); }

WorkerProcesses::~WorkerProcesses() = default;

void WorkerProcesses::Send(std::size_t, const WorkerMessage &) { std::abort(); }

WorkerProcesses::Received WorkerProcesses::Receive() { std::abort(); }
