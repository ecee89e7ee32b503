#pragma once

#include "internal/NameScopes.h"

/// The checks of a feature's name as decisions. They make the requests of the exported operations, in their order, and
/// register no error.
namespace NameDecisions {

/// The name that is checked.
struct NameToCheck {
    const ZFXUnicodeString& text;
    bool isLiteral = false; ///< false: an empty text means the stored name of the feature
};

/// Compares a name with all features of a list but `feature`.
[[nodiscard]] Decision InList(const ZFXISpecObject_var& feature, const ZFXListValZFXBaseUnknown_var& features,
                              const NameToCheck& name);
/// Compares a name with all features of a scope but `feature`.
[[nodiscard]] Decision InScope(const NameScopes::Scope& scope, const ZFXISpecObject_var& feature,
                               const NameToCheck& name);
/// Checks whether a name is unique in the scope of the feature, then its text.
[[nodiscard]] Decision OfName(const ZFXISpecObject_var& feature, const NameToCheck& name, bool checkFirstCharacter);

} // namespace NameDecisions
