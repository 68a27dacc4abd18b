#pragma once

// Waiting for what another process or thread does.

#include <chrono>
#include <thread>

/// Whether `isSo()` comes true within a time far beyond what it needs.
template <typename Condition> bool Becomes(Condition isSo) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!isSo()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}
