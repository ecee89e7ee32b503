// Memory of all platform objects. Workload: a scan makes one adaptor per feature and destroys it after one request.
// Each thread therefore keeps its freed small blocks in one linked list per size and reuses the latest one.

#include "base/CompilerExtensions.h"
#include "object-model/ZFXBaseUnknown.h"

#include <cstddef>
#include <cstdlib>
#include <utility>

namespace {

// AddressSanitizer finds a use after free only if freed blocks are not reused.
constexpr bool kReuseBlocks = !kZFXAddressSanitizer;
constexpr std::size_t kGranule = 16;
constexpr std::size_t kSizeClasses = 8;  // sizes in granules; reuses blocks of up to 7 granules, 112 bytes
constexpr int kMaxFreePerSizeClass = 64; // further blocks are freed

/// Precedes each block: the block's size class while it is in use, the next free block while it is in a list.
union Header {
    std::size_t sizeClass;
    Header* next;
};
static_assert(sizeof(Header) <= kGranule);

/// Constant-initialized and never destroyed: access needs no initialization check.
struct BlockCache {
    Header* free[kSizeClasses];
    int freeCount[kSizeClasses];
    long liveBlocks;
    bool isFreedAtThreadExit;
    bool hasEnded; // objects can outlive the thread's cache
};

/// The initial-exec model reads the cache without a function call. A host that loads the library late with dlopen must
/// have room for all thread-local data of the library, 408 bytes, in the loader's static block. glibc 2.36 reserves
/// about 1700 bytes there for such libraries. If other libraries use up that reserve, dlopen reports the failure, and
/// the host either links the library or raises the tunable glibc.rtld.optional_static_tls.
ZFX_INITIAL_EXEC constinit thread_local BlockCache cache{};

/// Frees the lists of the thread when the thread ends.
struct FreeAtThreadExit {
    FreeAtThreadExit() = default;
    FreeAtThreadExit(const FreeAtThreadExit&) = delete;
    FreeAtThreadExit& operator=(const FreeAtThreadExit&) = delete;
    ~FreeAtThreadExit() {
        for (Header* block : cache.free)
            while (block != nullptr)
                std::free(std::exchange(block, block->next));
        cache.hasEnded = true;
    }
};

void RegisterFreeAtThreadExit() {
    thread_local const FreeAtThreadExit atThreadExit;
    static_cast<void>(atThreadExit); // constructed, and so registered, at its first use
    cache.isFreedAtThreadExit = true;
}

} // namespace

void* ZFXBaseUnknown::operator new(std::size_t size) noexcept {
    const std::size_t sizeClass = (size + kGranule - 1) / kGranule;
    Header* block = nullptr;
    if (kReuseBlocks && sizeClass < kSizeClasses && !cache.hasEnded && cache.free[sizeClass] != nullptr) {
        block = cache.free[sizeClass];
        cache.free[sizeClass] = block->next;
        --cache.freeCount[sizeClass];
    } else {
        block = static_cast<Header*>(std::malloc(kGranule + sizeClass * kGranule));
    }
    if (block == nullptr)
        return nullptr;
    block->sizeClass = sizeClass;
    ++cache.liveBlocks;
    return reinterpret_cast<char*>(block) + kGranule;
}

void ZFXBaseUnknown::operator delete(void* memory) noexcept {
    if (memory == nullptr)
        return;
    --cache.liveBlocks;
    auto* block = reinterpret_cast<Header*>(static_cast<char*>(memory) - kGranule);
    const std::size_t sizeClass = block->sizeClass;
    if (!kReuseBlocks || sizeClass >= kSizeClasses || cache.hasEnded ||
        cache.freeCount[sizeClass] == kMaxFreePerSizeClass) {
        std::free(block);
        return;
    }
    if (!cache.isFreedAtThreadExit)
        RegisterFreeAtThreadExit();
    block->next = cache.free[sizeClass];
    cache.free[sizeClass] = block;
    ++cache.freeCount[sizeClass];
}

long ZFXBaseUnknown::LiveAllocations() noexcept { return cache.liveBlocks; }
