#pragma once

#include "object-model/ZFXHandle.h"

#include <algorithm>
#include <cstddef>

/// Walks through a scope in its order: `visit` answers whether to go on. What is read a few steps later is fetched into
/// the processor's caches meanwhile: a scope does not fit there, its objects lie anywhere, and reading one is mostly
/// waiting for it.
template <class Visit>
void Walk(const ZFXListValZFXBaseUnknown_var& scope, Visit visit) {
    constexpr std::ptrdiff_t kSteps = 6;
    constexpr std::ptrdiff_t kLine = 64; // bytes that are fetched together
    const auto end = scope.end();
    for (auto at = scope.begin(); at != end; ++at) {
        const auto* later = reinterpret_cast<const char*>((at + std::min(kSteps, end - at - 1))->Get());
        if (later != nullptr) {
            __builtin_prefetch(later); // a feature with its name takes three
            __builtin_prefetch(later + kLine);
            __builtin_prefetch(later + 2 * kLine);
        }
        if (!visit(*at))
            return;
    }
}
