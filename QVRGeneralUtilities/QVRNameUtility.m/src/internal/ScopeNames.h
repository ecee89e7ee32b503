#pragma once

#include "analysis/ZFXIAlias.h"
#include "base/CompilerExtensions.h"
#include "object-model/ZFXHandle.h"

#include <algorithm>
#include <cstddef>

// Reads and compares the names in a scope: the list of objects in which a name must be unique or is numbered.

/// Returns the alias of an object, or an empty string if the object offers none.
[[nodiscard]] inline ZFXUnicodeString NameOf(const ZFXBaseUnknown_var& object) {
    const ZFXIAlias_var alias(object);
    return alias == nullptr ? ZFXUnicodeString() : alias->GetAlias();
}

/// Returns true if two names are identical or differ in letter case only.
[[nodiscard]] inline bool NamesClash(const ZFXUnicodeString& a, const ZFXUnicodeString& b) noexcept {
    return a.Compare(b) != 0;
}

/// Calls `visit` with the objects of a scope in their order, until it returns false.
///
/// Prefetches each object a few calls ahead. Without this, a scan of a large scope mostly waits for memory, because the
/// objects do not fit into the caches of the processor.
template <class Visit>
void ForEachPrefetched(const ZFXListValZFXBaseUnknown_var& scope, Visit visit) {
    constexpr std::ptrdiff_t kAhead = 6;
    constexpr std::ptrdiff_t kCacheLine = 64; // bytes
    const auto end = scope.end();
    for (auto at = scope.begin(); at != end; ++at) {
        const auto* later = reinterpret_cast<const char*>((at + std::min(kAhead, end - at - 1))->Get());
        if (later != nullptr) {
            ZFXPrefetch(later); // a feature and its name fill three cache lines
            ZFXPrefetch(later + kCacheLine);
            ZFXPrefetch(later + 2 * kCacheLine);
        }
        if (!visit(*at))
            return;
    }
}
