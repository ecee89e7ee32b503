// Names of features that propagate from step to step. Their scope: the features of their kind in all steps of a case.

#include "QVRNameUtil.h"

#include "internal/NameDecisions.h"

#include <cassert>
#include <utility>

/// Appends the results of GetObjectsInStep for each step of the case, except `object`. Steps that fail contribute
/// nothing. Returns the code of the last step, or of the request for the steps if there are none.
HRESULT QVRNameUtil::GetAllPropagatingObjects(ZFXISamAnalysisCase_var& analysisCase,
                                              ZFXListValZFXBaseUnknown_var& objects,
                                              ZFXISpecObject_var& object) noexcept {
    ZFXListValZFXBaseUnknown_var found;
    const Decision decision = NameScopes::AppendFeaturesOfAllSteps(
        analysisCase,
        [&](ZFXISpecObject_var& step, ZFXListValZFXBaseUnknown_var& features) {
            return GetObjectsInStep(step, features, object);
        },
        found);
    const ZFXBaseUnknown* self = ZFXIdentityOf(object);
    for (ZFXBaseUnknown_var& feature : found)
        if (ZFXIdentityOf(feature) != self)
            objects.Append(std::move(feature));
    return Raise(QVR_HERE, decision);
}

HRESULT QVRNameUtil::GetUniqueNameForPropagatingObject(ZFXUnicodeString& name, ZFXISpecObject_var& object,
                                                       ZFXISamAnalysisCase_var& analysisCase) noexcept {
    assert(object != nullptr && analysisCase != nullptr);
    ZFXListValZFXBaseUnknown_var scope;
    const HRESULT code = GetAllPropagatingObjects(analysisCase, scope, object);
    return Failed(code) ? code : GetNextUniqueName(name, scope);
}

HRESULT QVRNameUtil::IsUniqueNameForPropagatingObject(ZFXISpecObject_var& object,
                                                      const ZFXUnicodeString& name) noexcept {
    return Raise(QVR_HERE, NameDecisions::InScope(NameScopes::OfPropagatingObject(object), object, {name}));
}
