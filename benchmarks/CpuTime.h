#pragma once

#include <ctime>

/// Returns the CPU time that this process has used. Other processes do not change it.
inline double CpuSeconds() {
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

/// Returns the CPU time of `work`. Used by benchmarks that prepare each iteration.
template <class Work>
double CpuSecondsOf(Work work) {
    const double start = CpuSeconds();
    work();
    return CpuSeconds() - start;
}
