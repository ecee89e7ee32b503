#pragma once

#include <cstddef>

/// Counts the heap allocations of this program and its libraries during its lifetime. Only one counter may exist at a
/// time, and the program must have one thread.
///
/// The source file replaces malloc, free and the related functions of the C library. The allocator of the object model
/// calls them too.
class HeapCounter {
public:
    HeapCounter() noexcept;
    ~HeapCounter();
    HeapCounter(const HeapCounter&) = delete;
    HeapCounter& operator=(const HeapCounter&) = delete;

    /// Returns the number of blocks allocated since the constructor, including those that were freed.
    static long Blocks() noexcept;
    /// Returns the bytes allocated since the constructor and not freed: the usable size of each block and its header.
    static long Bytes() noexcept;
};
