#include "object-model/ZFXBaseUnknown.h"

#include "object-model/ZFXInterfaces.h"
#include "object-model/ZFXMetaClass.h"

#include <cstdlib>
#include <utility>

namespace {

/// Small blocks that were given back, by size, for the thread's next objects: an adaptor lives no longer than one
/// question, so a scan would otherwise go to the heap for every feature. Address checking wants every block fresh.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kKeepsBlocks = false;
#elif defined(__has_feature)
constexpr bool kKeepsBlocks = !__has_feature(address_sanitizer);
#else
constexpr bool kKeepsBlocks = true;
#endif
constexpr std::size_t kGrain = 16;
constexpr std::size_t kSizes = 8; // up to 112 bytes
constexpr int kMostKept = 64;     // of one size

/// Stands in a block: its size while it is in use, the next one while it is not.
union Header {
    std::size_t size;
    Header* next;
};
static_assert(sizeof(Header) <= kGrain);

/// Zero-initialized and never destroyed, so that it is read without a check whether it is constructed.
struct Kept {
    Header* first[kSizes];
    int count[kSizes];
    long inUse;
    bool isWatched; // its blocks are freed when the thread ends
    bool hasEnded;  // objects may outlive that
};

/// The blocks of this thread. The initial-exec model reads them without a function call. A host that loads the library
/// late with dlopen must have room for all thread-local data of the library, 408 bytes, in the loader's static block.
/// glibc 2.36 reserves about 1700 bytes there for such libraries. If other libraries use up that reserve, dlopen
/// reports the failure, and the host either links the library or raises the tunable glibc.rtld.optional_static_tls.
__attribute__((tls_model("initial-exec"))) constinit thread_local Kept kept{};

/// Frees the kept blocks when the thread ends.
struct Watch {
    Watch() = default;
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch() {
        for (Header* block : kept.first)
            while (block != nullptr)
                std::free(std::exchange(block, block->next));
        kept.hasEnded = true;
    }
};

void WatchThisThread() {
    thread_local const Watch watch;
    static_cast<void>(watch);
    kept.isWatched = true;
}

} // namespace

void* ZFXBaseUnknown::operator new(std::size_t size) noexcept {
    const std::size_t rounded = (size + kGrain - 1) / kGrain;
    Header* block = nullptr;
    if (kKeepsBlocks && rounded < kSizes && !kept.hasEnded && kept.first[rounded] != nullptr) {
        block = kept.first[rounded];
        kept.first[rounded] = block->next;
        --kept.count[rounded];
    } else {
        block = static_cast<Header*>(std::malloc(kGrain + rounded * kGrain));
    }
    if (block == nullptr)
        return nullptr;
    block->size = rounded;
    ++kept.inUse;
    return reinterpret_cast<char*>(block) + kGrain;
}

void ZFXBaseUnknown::operator delete(void* memory) noexcept {
    if (memory == nullptr)
        return;
    --kept.inUse;
    auto* block = reinterpret_cast<Header*>(static_cast<char*>(memory) - kGrain);
    const std::size_t rounded = block->size;
    if (!kKeepsBlocks || rounded >= kSizes || kept.hasEnded || kept.count[rounded] == kMostKept) {
        std::free(block);
        return;
    }
    if (!kept.isWatched)
        WatchThisThread();
    block->next = kept.first[rounded];
    kept.first[rounded] = block;
    ++kept.count[rounded];
}

long ZFXBaseUnknown::LiveAllocations() noexcept { return kept.inUse; }

HRESULT ZFXBaseUnknown::QueryInterface(const IID& iid, void** face) {
    if (face == nullptr)
        return E_POINTER;
    *face = nullptr;
    if (m_implementation != nullptr)
        return m_implementation->QueryInterface(iid, face);
    if (iid != IID_ZFXBaseUnknown)
        return E_NOINTERFACE;
    AddRef();
    *face = this;
    return S_OK;
}

HRESULT ZFXBaseUnknown::QueryInterface(const char* interfaceName, void** face) {
    if (face == nullptr)
        return E_POINTER;
    *face = nullptr;
    const IID* iid = ZFXFindInterface(interfaceName);
    return iid == nullptr ? E_NOINTERFACE : QueryInterface(*iid, face);
}

HRESULT ZFXBaseUnknown::GetTypeInfoCount(unsigned int* count) {
    if (count == nullptr)
        return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT ZFXBaseUnknown::GetTypeInfo(unsigned int, unsigned long, void**) { return E_NOTIMPL; }

HRESULT ZFXBaseUnknown::GetIDsOfNames(const IID&, char16_t**, unsigned int, unsigned long, long*) { return E_NOTIMPL; }

HRESULT ZFXBaseUnknown::Invoke(long, const IID&, unsigned long, unsigned short, void*, void*, void*, unsigned int*) {
    return E_NOTIMPL;
}

ZFXBaseUnknown::~ZFXBaseUnknown() = default;

ZFXMetaClass* ZFXBaseUnknown::MetaObject() {
    static ZFXMetaClass* const metaObject = fct_RetrieveMetaObject("ZFXBaseUnknown", ENUMTypeOfClass::Implementation,
                                                                   ZFXnull::MetaObject(), nullptr, "ZFXPlatform", 0);
    return metaObject;
}

ZFXMetaClass* ZFXnull::MetaObject() {
    static ZFXMetaClass* const metaObject =
        fct_RetrieveMetaObject("ZFXnull", ENUMTypeOfClass::Implementation, nullptr, nullptr, "ZFXPlatform", 0);
    return metaObject;
}

ZFXMetaClass* ZFXBaseUnknown::GetMetaObject() const { return MetaObject(); }
const char* ZFXBaseUnknown::IsA() const { return GetMetaObject()->IsA(); }
int ZFXBaseUnknown::IsAKindOf(const char* name) const { return GetMetaObject()->IsAKindOf(name); }

ZFXBaseUnknown* ZFXBaseUnknown::GetImpl() const {
    return m_implementation != nullptr ? m_implementation->GetImpl() : const_cast<ZFXBaseUnknown*>(this);
}

ZFXBaseUnknown* ZFXBaseUnknown::SetImpl(ZFXBaseUnknown* implementation) {
    return std::exchange(m_implementation, implementation);
}

int ZFXBaseUnknown::IsNull() const { return 0; }
int ZFXBaseUnknown::IsEqual(const ZFXBaseUnknown* other) const { return ZFXSameObject(this, other); }
void ZFXBaseUnknown::ChangeComponentState(ZFXComponentState, ZFXBaseUnknown*) {}
