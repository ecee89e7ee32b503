// Names of features that propagate from step to step. Their scope: the features of their kind in all steps of a case.

#include "QVRNameUtil.h"

#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXILinkableObject.h"
#include "internal/InputErrors.h"
#include "internal/Navigation.h"

#include <cassert>
#include <utility>

/// Appends the results of GetObjectsInStep for each step of the case, except `object`. Steps that fail contribute
/// nothing. Returns the code of the last step, or of the request for the steps if there are none.
HRESULT QVRNameUtil::GetAllPropagatingObjects(ZFXISamAnalysisCase_var& analysisCase,
                                              ZFXListValZFXBaseUnknown_var& objects,
                                              ZFXISpecObject_var& object) noexcept {
    const auto [outcome, history] = Navigation::SimulationHistoryOf(analysisCase);
    if (outcome == Navigation::HistoryOutcome::NotFound)
        return InputErrorReturn(MessageId::AnalysisCaseERR_03);
    if (outcome != Navigation::HistoryOutcome::Found)
        return InputErrorReturn(MessageId::ObjectParentERR_01);
    ZFXListValZFXBaseUnknown_var steps;
    HRESULT code = history->ListChildren(steps, ZFXISamAnalysisScan::kScanMode);
    if (Failed(code))
        return code;
    const ZFXBaseUnknown* self = ZFXIdentityOf(object);
    for (int s = 1; s <= steps.Size(); ++s) {
        ZFXISpecObject_var step(steps[s]);
        ZFXListValZFXBaseUnknown_var inStep;
        code = GetObjectsInStep(step, inStep, object);
        if (Failed(code))
            continue; // the code of the last step is returned
        for (ZFXBaseUnknown_var& found : inStep)
            if (ZFXIdentityOf(found) != self)
                objects.Append(std::move(found));
    }
    return code;
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
    ZFXISpecObject_var parent;
    HRESULT code = QVRAnalysisEntityUtils::GetParentCaseFromObject(object, parent);
    ZFXISamAnalysisCase_var analysisCase;
    if (!Failed(code)) {
        analysisCase = parent;
    } else {
        // Outside every case, the scope is the current case of the document. If there is none, the name is unique.
        const ZFXILinkableObject_var linkable(object);
        ZFXDocument* document = linkable == nullptr ? nullptr : linkable->GetOwningDocument();
        if (document == nullptr)
            return code;
        code = QVRStepUtils::GetCurrentAnalysisCaseSP(analysisCase, document);
        if (Failed(code) || analysisCase == nullptr)
            return code;
    }
    ZFXListValZFXBaseUnknown_var scope;
    code = GetAllPropagatingObjects(analysisCase, scope, object);
    return Failed(code) ? code : IsNameUniqueInSet(object, scope, name);
}
