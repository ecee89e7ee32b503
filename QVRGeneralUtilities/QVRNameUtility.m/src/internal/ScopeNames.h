#pragma once

#include "analysis/ZFXIAlias.h"
#include "base/CompilerExtensions.h"
#include "object-model/ZFXHandle.h"

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
/// Prefetches each object a few calls ahead. Without this, a scan of a large scope whose objects are scattered in
/// memory mostly waits for memory. docs/performance.md contains the measurements.
template <class Visit>
void ForEachPrefetched(const ZFXListValZFXBaseUnknown_var& scope, Visit visit) {
    constexpr std::ptrdiff_t kAhead = 6;
    constexpr std::ptrdiff_t kCacheLine = 64; // bytes
    const auto end = scope.end();
    for (auto at = scope.begin(); at != end; ++at) {
        const auto* later = end - at > kAhead ? reinterpret_cast<const char*>(at[kAhead].Get()) : nullptr;
        if (later != nullptr) {
            ZFXPrefetch(later); // three lines: an object with several interfaces is larger than one
            ZFXPrefetch(later + kCacheLine);
            ZFXPrefetch(later + 2 * kCacheLine);
        }
        if (!visit(*at))
            return;
    }
}
