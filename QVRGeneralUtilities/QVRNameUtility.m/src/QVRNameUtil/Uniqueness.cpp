#include "QVRNameUtil.h"

#include "internal/NameDecisions.h"

HRESULT QVRNameUtil::IsNameUniqueInSet(const ZFXISpecObject_var& feature, const ZFXListValZFXBaseUnknown_var& scope,
                                       const ZFXUnicodeString& name) noexcept {
    return Raise(QVR_HERE, NameDecisions::InList(feature, scope, {name}));
}

HRESULT QVRNameUtil::IsNameUniqueAcrossCases(ZFXISpecObject_var& feature, const ZFXUnicodeString& name) noexcept {
    return Raise(QVR_HERE, NameDecisions::InScope(NameScopes::OfJob(feature), feature, {name}));
}
