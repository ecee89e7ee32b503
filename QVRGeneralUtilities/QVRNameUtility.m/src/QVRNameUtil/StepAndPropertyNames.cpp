#include "QVRNameUtil.h"

#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXILinkableObject.h"
#include "errors/ZFXError.h"
#include "internal/InputErrors.h"
#include "internal/Navigation.h"
#include "internal/Vocabulary.h"

#include <tuple>

HRESULT QVRNameUtil::GetUniqueNameForStep(ZFXUnicodeString& name, ZFXISamAnalysisCase_var& analysisCase) noexcept {
    if (analysisCase == nullptr)
        return InputErrorReturn(MessageId::AnalysisCaseERR_01);
    if (QVRAnalysisDocUtils::IsTarnisAnalysisCase(analysisCase) == 0)
        return InputErrorReturn(MessageId::AnalysisCaseERR_02);
    const auto [outcome, history] = Navigation::SimulationHistoryOf(analysisCase);
    if (outcome != Navigation::HistoryOutcome::Found)
        return InputErrorReturn(MessageId::AnalysisCaseERR_03);
    ZFXListValZFXBaseUnknown_var steps;
    const HRESULT code = history->ListChildren(steps, ZFXISamAnalysisScan::kScanMode);
    if (Failed(code))
        return code;
    if (steps.Size() > 0)
        steps.RemovePosition(1); // the numbering skips the first child of a history
    return GetNextUniqueName(name, steps);
}

HRESULT QVRNameUtil::IsUniqueNameForStep(ZFXISpecObject_var& step, const ZFXUnicodeString& name) noexcept {
    const ZFXBaseUnknown_var parent = Navigation::SimulationHistoryAbove(step);
    if (parent == nullptr)
        return InputErrorReturn(MessageId::StepParentERR_01);
    const ZFXISamAnalysisScan_var history(parent);
    ZFXListValZFXBaseUnknown_var steps;
    if (history == nullptr || Failed(history->ListChildren(steps, ZFXISamAnalysisScan::kScanMode)))
        return InputErrorReturn(MessageId::StepParentERR_02);
    const HRESULT code = IsNameUniqueInSet(step, steps, name);
    if (!Failed(code))
        return code;
    const ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr);
    if (error == nullptr)
        return 1;
    if (error->GetReturnCode() == kNameRejected)
        return InputErrorReturn(MessageId::DuplicateNameERR_01);
    return InputErrorReturn(std::string(error->GetMsgId()));
}

HRESULT QVRNameUtil::GetUniqueNameForProperty(ZFXUnicodeString& name, ZFXISamAnalysisCase_var& analysisCase) noexcept {
    const ZFXILinkableObject_var linkable(analysisCase);
    if (linkable == nullptr)
        return InputErrorReturn(MessageId::AnalysisCaseERR_01);
    const ZFXDocument* document = linkable->GetOwningDocument();
    if (document == nullptr)
        return InputErrorReturn(MessageId::DocumentERR_01);
    ZFXISamAnalysisModel_var model;
    if (Failed(QVRAnalysisDocUtils::GetAnalysisModel(model, document)))
        return InputErrorReturn(MessageId::ErrorAnalysisModelErr_0004);
    const ZFXISamAnalysisScan_var scan(model);
    ZFXListValZFXBaseUnknown_var found;
    if (scan != nullptr) // the list counts, not the code
        std::ignore =
            scan->FindObjectsOfType(Vocabulary::QVRTarnisPropertySetLT, found, ZFXISamAnalysisScan::kScanMode);
    const ZFXISamAnalysisSet_var propertySet(found.Size() == 0 ? ZFXBaseUnknown_var() : found[1]);
    ZFXListValZFXBaseUnknown_var properties;
    if (propertySet == nullptr || Failed(Navigation::AppendMembers(propertySet, properties)))
        return InputErrorReturn(MessageId::PropertySetERR_01);
    return GetNextUniqueName(name, properties);
}

HRESULT QVRNameUtil::IsUniqueNameForObject(ZFXISpecObject_var& object, const ZFXUnicodeString& name) noexcept {
    using Navigation::ParentSetOutcome;
    const Navigation::ParentSetResult parent = Navigation::FirstParentSetOf(object);
    if (parent.outcome == ParentSetOutcome::EmptyList)
        return S_OK; // no set, so no names to compare with
    if (parent.outcome != ParentSetOutcome::Found)
        return parent.code;
    const ZFXISamAnalysisSet_var set(parent.set);
    if (set == nullptr)
        return E_FAIL;
    ZFXListValZFXBaseUnknown_var scope;
    const HRESULT code = Navigation::AppendMembers(set, scope);
    return Failed(code) ? code : IsNameUniqueInSet(object, scope, name);
}
