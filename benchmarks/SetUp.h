#pragma once

#include <chrono>

/// Watches that a set-up ends: one whose cost grows with the square of its size would not.
class SetUpLimit {
public:
    bool IsOver() const { return std::chrono::steady_clock::now() > m_end; }

private:
    std::chrono::steady_clock::time_point m_end = std::chrono::steady_clock::now() + std::chrono::seconds(3);
};

/// Seconds that a piece of work takes; for benchmarks that must prepare each iteration.
template <class Work>
double SecondsOf(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}
