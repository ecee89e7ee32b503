#include "HeapCounter.h"

#include "base/CompilerExtensions.h"

#include <cerrno>
#include <malloc.h>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* memory);
}

namespace {

bool isCounting = false;
long blocks = 0;
long bytes = 0;

long SizeOf(void* memory) { return static_cast<long>(malloc_usable_size(memory) + sizeof(std::size_t)); }

void* CountAllocated(void* memory) {
    if (isCounting && memory != nullptr) {
        ++blocks;
        bytes += SizeOf(memory);
    }
    return memory;
}

void CountFreed(void* memory) {
    if (isCounting && memory != nullptr)
        bytes -= SizeOf(memory);
}

} // namespace

extern "C" {
ZFX_EXPORT void* malloc(std::size_t size) noexcept { return CountAllocated(__libc_malloc(size)); }
ZFX_EXPORT void* calloc(std::size_t count, std::size_t size) noexcept {
    return CountAllocated(__libc_calloc(count, size));
}
ZFX_EXPORT void* realloc(void* memory, std::size_t size) noexcept {
    CountFreed(memory);
    return CountAllocated(__libc_realloc(memory, size));
}
ZFX_EXPORT void* memalign(std::size_t alignment, std::size_t size) noexcept {
    return CountAllocated(__libc_memalign(alignment, size));
}
ZFX_EXPORT void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept { return memalign(alignment, size); }
ZFX_EXPORT int posix_memalign(void** memory, std::size_t alignment, std::size_t size) noexcept {
    *memory = memalign(alignment, size);
    return *memory == nullptr ? ENOMEM : 0;
}
ZFX_EXPORT void free(void* memory) noexcept {
    CountFreed(memory);
    __libc_free(memory);
}
}

HeapCounter::HeapCounter() noexcept {
    blocks = bytes = 0;
    isCounting = true;
}
HeapCounter::~HeapCounter() { isCounting = false; }
long HeapCounter::Blocks() noexcept { return blocks; }
long HeapCounter::Bytes() noexcept { return bytes; }
