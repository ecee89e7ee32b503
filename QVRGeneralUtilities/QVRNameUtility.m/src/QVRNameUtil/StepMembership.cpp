#include "QVRNameUtil.h"

#include "analysis/QVRIPropagatingFeature.h"
#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXIAlias.h"
#include "internal/Navigation.h"
#include "internal/Vocabulary.h"

#include <tuple>
#include <utility>

namespace {

/// Returns true if the member was propagated to its step from an earlier one. Returns false for every initial
/// temperature.
[[nodiscard]] bool IsPropagated(const ZFXISpecObject_var& member) {
    const QVRIPropagatingFeature_var propagating(member);
    return propagating != nullptr && member->GetLateType() != Vocabulary::QVRInitialTemperatureLT &&
           propagating->IsPropagated() != 0;
}

} // namespace

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
    const ZFXISpecObject_var parentSet(Navigation::FirstParentSetOf(object).set);
    if (parentSet == nullptr)
        return E_FAIL;
    const ZFXUnicodeString setType = parentSet->GetLateType();
    const ZFXISamAnalysisScan_var scan(step);
    if (scan == nullptr)
        return E_FAIL;
    ZFXListValZFXBaseUnknown_var found;
    HRESULT code = scan->FindObjectsOfType(setType, found, ZFXISamAnalysisScan::kScanMode);
    if (Failed(code))
        return code;
    for (int i = 1; i <= found.Size(); ++i) {
        const ZFXISamAnalysisSet_var set(found[i]);
        if (set == nullptr)
            continue;
        ZFXListValZFXISpecObject_var members;
        // The list counts, not the code.
        std::ignore = set->ListMembers(members, CLSID_ZFXBaseUnknown, ZFXISamAnalysisSet::kMemberFlag);
        for (ZFXISpecObject_var& member : members)
            if (!IsPropagated(member))
                objects.Append(std::move(member));
        code = S_OK;
    }
    return code;
}
