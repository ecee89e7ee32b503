#pragma once

#include <ctime>

/// The processor's time so far, which other programs cannot spend.
inline double ProcessorSeconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

/// Seconds that a piece of work takes; for benchmarks that must prepare each iteration.
template <class Work>
double SecondsOf(Work work) {
    const double start = ProcessorSeconds();
    work();
    return ProcessorSeconds() - start;
}
