#pragma once

#include <cstddef>

/// Counts what this program and its libraries take from the heap for as long as it lives; one at a time, on a program
/// of one thread. It stands in for malloc and its kin, which the allocator of the object model stands on too.
class HeapCounter {
public:
    HeapCounter() noexcept;
    ~HeapCounter();
    HeapCounter(const HeapCounter&) = delete;
    HeapCounter& operator=(const HeapCounter&) = delete;

    /// Blocks taken since it began, those given back included.
    static long Blocks() noexcept;
    /// Usable bytes, with the word in front of each block, taken since it began and not given back.
    static long Bytes() noexcept;
};
