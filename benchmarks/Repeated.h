#pragma once

#include "Benchmarks.h"

#include <benchmark/benchmark.h>

/// The number of calls in one operation of a function that takes nanoseconds.
inline constexpr int kCalls = 1000;

/// Returns an operation that makes kCalls calls of `function`, which the compiler inlines.
template <class Function>
Operation Repeated(Function function) {
    return [function]() mutable {
        for (int i = 0; i < kCalls; ++i)
            function();
        return true;
    };
}
