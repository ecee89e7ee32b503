// Memory of platform objects, measured from outside: neither a debugger nor a sanitizer sees a cache that grows.

#include "base/CompilerExtensions.h"
#include "object-model/ZFXHandle.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <thread>
#include <vector>

#ifdef __linux__
#include <malloc.h>
#endif

namespace {

TEST(BlockAllocator, ReturnsNullIfThereIsNoMemory) {
    if (kZFXAddressSanitizer)
        GTEST_SKIP() << "AddressSanitizer ends the process if there is no memory";
    const long before = ZFXBaseUnknown::LiveAllocations();
    EXPECT_EQ(ZFXBaseUnknown::operator new(SIZE_MAX / 2), nullptr);
    ZFXBaseUnknown::operator delete(nullptr);
    EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), before);
}

#ifdef __linux__

/// Returns the bytes that the C library has allocated.
long BytesInUse() { return static_cast<long>(mallinfo2().uordblks); }

void Allocate(std::vector<void*>& blocks, std::size_t size) {
    for (void*& block : blocks)
        block = ZFXBaseUnknown::operator new(size);
}

void Free(const std::vector<void*>& blocks) {
    for (void* block : blocks)
        ZFXBaseUnknown::operator delete(block);
}

/// Allocates and frees 1000 blocks, twice, on a thread. Returns how many are still allocated before the thread ends.
long BlocksKept(std::size_t size) {
    constexpr long kBlocks = 1000;
    long kept = 0;
    std::thread([&] {
        std::vector<void*> blocks(kBlocks);
        const long before = BytesInUse();
        Allocate(blocks, size);
        EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), kBlocks);
        const long bytesOfABlock = (BytesInUse() - before) / kBlocks;
        Free(blocks);
        EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), 0);
        Allocate(blocks, size);
        EXPECT_LE((BytesInUse() - before) / bytesOfABlock, kBlocks + 1) << "the blocks that were kept are not reused";
        Free(blocks);
        kept = (BytesInUse() - before) / bytesOfABlock;
    }).join();
    return kept;
}

TEST(BlockAllocator, Keeps64FreedBlocksOfEachSmallSizeUntilTheThreadEnds) {
    if (kZFXAddressSanitizer)
        GTEST_SKIP() << "AddressSanitizer switches the cache off";
    static_cast<void>(BlocksKept(1)); // the first thread of a process leaves other blocks
    const long before = BytesInUse();
    const long keptByTheCLibrary = BlocksKept(113);
    EXPECT_LT(keptByTheCLibrary, 10);
    for (const std::size_t size : {std::size_t{1}, std::size_t{112}}) {
        const long kept = BlocksKept(size) - keptByTheCLibrary;
        EXPECT_GE(kept, 64) << size;
        EXPECT_LE(kept, 65) << size; // the registration of the thread's end is as large as the smallest block
    }
    EXPECT_LT(BytesInUse() - before, 1000) << "the threads have ended";
}

#endif

} // namespace
