#pragma once

#include "analysis/ZFXIAlias.h"
#include "object-model/ZFXHandle.h"

/// The name of an object: its alias; empty for one that offers none.
inline ZFXUnicodeString NameOf(const ZFXBaseUnknown_var& object) {
    const ZFXIAlias_var alias(object);
    return alias == nullptr ? ZFXUnicodeString() : alias->GetAlias();
}

/// Whether two names cannot stand side by side: identical, or equal apart from letter case.
inline bool NamesClash(const ZFXUnicodeString& a, const ZFXUnicodeString& b) noexcept { return a.Compare(b) != 0; }
