#include "tools/progress.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include <unistd.h>

Progress::Progress(long long total)
    : total_(total), visible_(isatty(STDERR_FILENO) == 1),
      outputIsTerminal_(isatty(STDOUT_FILENO) == 1), next_(std::chrono::steady_clock::now()) {}

Progress::~Progress() { Clear(); }

void Progress::Show(long long bytes, long long people) {
    const auto now = std::chrono::steady_clock::now();
    if (!visible_ || now < next_)
        return;
    next_ = now + std::chrono::milliseconds(100);
    drawn_ = true;
    if (total_ <= 0) {
        std::fprintf(stderr, "\r%lld people", people);
        return;
    }
    constexpr int width = 40;
    const int done = static_cast<int>(std::min(bytes, total_) * width / total_);
    const std::string bar = std::string(static_cast<std::size_t>(done), '#') +
                            std::string(static_cast<std::size_t>(width - done), '.');
    std::fprintf(stderr, "\r[%s] %3lld %%  %lld people", bar.c_str(),
                 std::min(bytes, total_) * 100 / total_, people);
}

void Progress::Clear() {
    if (drawn_)
        std::fprintf(stderr, "\r\033[K");
    drawn_ = false;
}

void Progress::ClearForOutput() {
    if (outputIsTerminal_)
        Clear();
}
