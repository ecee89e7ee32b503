#include "QVRNameUtil.h"

#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXIAlias.h"
#include "internal/NameScopes.h"

HRESULT QVRNameUtil::GetParentStepName(const ZFXISpecObject_var& object, ZFXUnicodeString& stepName) noexcept {
    if (object == nullptr)
        return E_FAIL;
    stepName = "";
    ZFXISpecObject_var step;
    const HRESULT code = QVRAnalysisEntityUtils::GetParentStep(object, step);
    if (Failed(code) || step == nullptr)
        return code;
    const ZFXIAlias_var alias(step);
    if (alias == nullptr)
        return E_FAIL;
    stepName = alias->GetAlias();
    return code;
}

/// Appends the members of those sets of the step that have the late type of the first set that contains `object`. Skips
/// propagated features except initial temperatures.
/// - E_FAIL: no set contains `object`, or the step does not offer ZFXISamAnalysisScan.
/// - The code of the search for the sets: the search failed.
HRESULT QVRNameUtil::GetObjectsInStep(ZFXISpecObject_var& step, ZFXListValZFXBaseUnknown_var& objects,
                                      const ZFXISpecObject_var& object) noexcept {
    return NameScopes::AppendFeaturesOfStep(step, NameScopes::SetTypeOf(object), objects);
}
