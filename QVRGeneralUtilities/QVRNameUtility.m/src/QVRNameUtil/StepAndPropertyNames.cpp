#include "QVRNameUtil.h"

#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXILinkableObject.h"
#include "errors/ZFXError.h"
#include "internal/Navigation.h"
#include "internal/Refusal.h"
#include "internal/Vocabulary.h"

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
        steps.RemovePosition(1); // The first child of a history takes no part in the numbering.
    return GetNextUniqueName(name, steps);
}

HRESULT QVRNameUtil::IsUniqueNameForStep(ZFXISpecObject_var& step, const ZFXUnicodeString& name) noexcept {
    const ZFXBaseUnknown_var above = Navigation::SimulationHistoryAbove(step);
    if (above == nullptr)
        return InputErrorReturn(MessageId::StepParentERR_01);
    const ZFXISamAnalysisScan_var history(above);
    ZFXListValZFXBaseUnknown_var steps;
    if (history == nullptr || Failed(history->ListChildren(steps, ZFXISamAnalysisScan::kScanMode)))
        return InputErrorReturn(MessageId::StepParentERR_02);
    const HRESULT code = IsNameUniqueInSet(step, steps, name);
    if (!Failed(code))
        return code;
    const ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr);
    if (error == nullptr)
        return 1;
    if (error->GetReturnCode() == kNameRefused)
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
    if (scan != nullptr) // The found list decides, not the code.
        scan->FindObjectsOfType(Vocabulary::QVRTarnisPropertySetLT, found, ZFXISamAnalysisScan::kScanMode);
    const ZFXISamAnalysisSet_var propertySet(found.Size() == 0 ? ZFXBaseUnknown_var() : found[1]);
    ZFXListValZFXBaseUnknown_var properties;
    if (propertySet == nullptr || Failed(Navigation::AppendMembers(propertySet, properties)))
        return InputErrorReturn(MessageId::PropertySetERR_01);
    return GetNextUniqueName(name, properties);
}

HRESULT QVRNameUtil::IsUniqueNameForObject(ZFXISpecObject_var& object, const ZFXUnicodeString& name) noexcept {
    using Navigation::ParentSetOutcome;
    const Navigation::ParentSetResult answer = Navigation::FirstParentSetOf(object);
    if (answer.outcome == ParentSetOutcome::EmptyList)
        return S_OK; // in no set, so beside nothing
    if (answer.outcome != ParentSetOutcome::Found)
        return answer.code;
    const ZFXISamAnalysisSet_var set(answer.holder);
    if (set == nullptr)
        return E_FAIL;
    ZFXListValZFXBaseUnknown_var scope;
    const HRESULT code = Navigation::AppendMembers(set, scope);
    return Failed(code) ? code : IsNameUniqueInSet(object, scope, name);
}
