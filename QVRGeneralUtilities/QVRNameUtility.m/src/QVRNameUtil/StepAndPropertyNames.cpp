#include "QVRNameUtil.h"

#include "internal/NameDecisions.h"

HRESULT QVRNameUtil::GetUniqueNameForStep(ZFXUnicodeString& name, ZFXISamAnalysisCase_var& analysisCase) noexcept {
    ZFXListValZFXBaseUnknown_var steps;
    const HRESULT code = Raise(QVR_HERE, NameScopes::AppendNumberedSteps(analysisCase, steps));
    return Failed(code) ? code : GetNextUniqueName(name, steps);
}

HRESULT QVRNameUtil::IsUniqueNameForStep(ZFXISpecObject_var& step, const ZFXUnicodeString& name) noexcept {
    return Raise(QVR_HERE, NameDecisions::InScope(NameScopes::OfStep(step), step, {name}));
}

HRESULT QVRNameUtil::GetUniqueNameForProperty(ZFXUnicodeString& name, ZFXISamAnalysisCase_var& analysisCase) noexcept {
    ZFXListValZFXBaseUnknown_var properties;
    const HRESULT code = Raise(QVR_HERE, NameScopes::AppendProperties(analysisCase, properties));
    return Failed(code) ? code : GetNextUniqueName(name, properties);
}

HRESULT QVRNameUtil::IsUniqueNameForObject(ZFXISpecObject_var& object, const ZFXUnicodeString& name) noexcept {
    return Raise(QVR_HERE, NameDecisions::InScope(NameScopes::OfMember(object), object, {name}));
}
