#include "QVRNameUtil.h"

#include "internal/NameDecisions.h"

HRESULT QVRNameUtil::GetUniqueNameForStep(ZFXUnicodeString& name, ZFXISamAnalysisCase_var& analysisCase) noexcept {
    ZFXListValZFXBaseUnknown_var steps;
    const HRESULT code = Raise(NameScopes::AppendNumberedSteps(analysisCase, steps));
    return Failed(code) ? code : GetNextUniqueName(name, steps);
}

HRESULT QVRNameUtil::IsUniqueNameForStep(ZFXISpecObject_var& step, const ZFXUnicodeString& name) noexcept {
    return Raise(NameDecisions::InScope(NameScopes::OfStep(step), step, {name}));
}

HRESULT QVRNameUtil::GetUniqueNameForProperty(ZFXUnicodeString& name, ZFXISamAnalysisCase_var& analysisCase) noexcept {
    ZFXListValZFXBaseUnknown_var properties;
    const HRESULT code = Raise(NameScopes::AppendProperties(analysisCase, properties));
    return Failed(code) ? code : GetNextUniqueName(name, properties);
}

HRESULT QVRNameUtil::IsUniqueNameForObject(ZFXISpecObject_var& object, const ZFXUnicodeString& name) noexcept {
    return Raise(NameDecisions::InScope(NameScopes::OfMember(object), object, {name}));
}
