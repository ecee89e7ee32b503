// Memory of platform objects, measured from outside: neither a debugger nor a sanitizer sees a cache that grows.

#include "object-model/ZFXHandle.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <thread>
#include <vector>

#ifdef __linux__
#include <malloc.h>
#include <unistd.h>
#endif

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kAddressSanitizer = true;
#elif defined(__has_feature)
constexpr bool kAddressSanitizer = __has_feature(address_sanitizer);
#else
constexpr bool kAddressSanitizer = false;
#endif

TEST(BlockAllocator, ReturnsNullIfThereIsNoMemory) {
    if (kAddressSanitizer)
        GTEST_SKIP() << "AddressSanitizer ends the process if there is no memory";
    const long before = ZFXBaseUnknown::LiveAllocations();
    EXPECT_EQ(ZFXBaseUnknown::operator new(SIZE_MAX / 2), nullptr);
    ZFXBaseUnknown::operator delete(nullptr);
    EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), before);
}

#ifdef __linux__

/// Returns the bytes that the C library has allocated.
long BytesInUse() { return static_cast<long>(mallinfo2().uordblks); }

/// Allocates and frees 1000 blocks on a thread. Returns the number of those that are still allocated before it ends.
long BlocksKept(std::size_t size) {
    constexpr long kBlocks = 1000;
    long kept = 0;
    std::thread([&] {
        std::vector<void*> blocks(kBlocks);
        const long before = BytesInUse();
        for (void*& block : blocks)
            block = ZFXBaseUnknown::operator new(size);
        EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), kBlocks);
        const long bytesOfABlock = (BytesInUse() - before) / kBlocks;
        for (void* block : blocks)
            ZFXBaseUnknown::operator delete(block);
        EXPECT_EQ(ZFXBaseUnknown::LiveAllocations(), 0);
        kept = (BytesInUse() - before) / bytesOfABlock;
    }).join();
    return kept;
}

TEST(BlockAllocator, KeepsAtMost64FreedBlocksOfEachSmallSizeUntilTheThreadEnds) {
    if (kAddressSanitizer)
        GTEST_SKIP() << "AddressSanitizer switches the cache off";
    constexpr long kOthers = 8;       // the C library keeps 7 freed blocks, and registers the end of the thread
    static_cast<void>(BlocksKept(1)); // what the first thread of the process needs stays
    const long before = BytesInUse();
    for (const auto& [size, expected] : {std::pair(1, 64), {112, 64}, {113, 0}}) {
        const long kept = BlocksKept(static_cast<std::size_t>(size));
        EXPECT_GE(kept, expected) << size;
        EXPECT_LE(kept, expected + kOthers) << size;
        EXPECT_LT(BytesInUse() - before, 1000) << size;
    }
}

/// Returns the memory of the process in bytes.
long ResidentBytes() {
    long total = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

TEST(BlockAllocator, ManyAdaptorsInTurnDoNotGrowTheProcess) {
    if (kAddressSanitizer)
        GTEST_SKIP() << "AddressSanitizer keeps freed blocks";
    const auto cast = [](int times) {
        for (int i = 0; i < times; ++i) {
            const auto adaptor = ZFXBaseUnknown_var::Attach(new ZFXBaseUnknown);
            const auto implementation = ZFXBaseUnknown_var::Attach(new ZFXBaseUnknown);
        }
    };
    cast(1000);
    const long before = ResidentBytes();
    cast(200'000);
    EXPECT_LT(ResidentBytes() - before, 2'000'000);
}

#endif

} // namespace
