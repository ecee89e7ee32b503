#include "QVRNameUtil.h"

#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXILinkableObject.h"
#include "internal/InputErrors.h"
#include "internal/NameDecisions.h"
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
    return Raise(NameDecisions::InScope(NameScopes::OfStep(step), step, {name}));
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
    return Raise(NameDecisions::InScope(NameScopes::OfMember(object), object, {name}));
}
