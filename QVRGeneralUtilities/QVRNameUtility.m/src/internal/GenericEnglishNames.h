#pragma once

#include "analysis/ZFXISpecObject.h"
#include "object-model/ZFXHandle.h"

#include <unordered_map>

/// The generic English names of features: the late type, "-" and the index (from 1) among the members of the father.
/// Lists the members of each father once.
class GenericEnglishNames {
public:
    /// Sets `name` to the generic English name of a feature. Fails as QVRGenI18NUtils::GetGenericEnglishName does.
    [[nodiscard]] HRESULT Of(const ZFXISpecObject_var& feature, ZFXUnicodeString& name);

private:
    struct Members {
        ZFXBaseUnknown_var father;         // a reference, so that no other object gets the address
        ZFXListValZFXISpecObject_var list; // empty if the members cannot be listed
        std::unordered_map<const ZFXBaseUnknown*, int> positions;
    };
    /// Returns the members of the feature's father.
    const Members& MembersAround(const ZFXISpecObject_var& feature);

    std::unordered_map<const ZFXBaseUnknown*, Members> m_membersOf; // by father
};
