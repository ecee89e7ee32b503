#include "internal/Navigation.h"

#include "analysis/ZFXISamAnalysisEntity.h"
#include "internal/Vocabulary.h"

#include <cassert>
#include <memory>
#include <utility>

namespace {

struct EmptyAndDelete {
    void operator()(ZFXListValZFXBaseUnknown_var* list) const {
        list->RemoveAll(ZFXCollec::ReleaseAllocation);
        delete list;
    }
};

/// A list that a platform operation returned; the caller empties and deletes it.
using OwnedList = std::unique_ptr<ZFXListValZFXBaseUnknown_var, EmptyAndDelete>;

} // namespace

namespace Navigation {

HistoryResult SimulationHistoryOf(const ZFXISamAnalysisCase_var& analysisCase) {
    const ZFXISamAnalysisScan_var scan(analysisCase);
    if (scan == nullptr)
        return {HistoryOutcome::CaseNotSearchable, {}};
    ZFXListValZFXBaseUnknown_var found;
    const HRESULT code = scan->FindObjectsOfType(Vocabulary::QVROruSimHistLT, found, ZFXISamAnalysisScan::kScanMode);
    if (Failed(code) || found.Size() == 0)
        return {HistoryOutcome::NotFound, {}};
    const ZFXISamAnalysisScan_var history(found[1]);
    if (history == nullptr)
        return {HistoryOutcome::HistoryNotSearchable, {}};
    return {HistoryOutcome::Found, history};
}

ZFXBaseUnknown_var SimulationHistoryAbove(const ZFXISpecObject_var& step) {
    assert(step != nullptr);
    const ZFXListValZFXISpecAttribute_var* attributes = step->ListPointingAttributes("ZFXISpecObject", "", "");
    if (attributes == nullptr)
        return {};
    for (int i = 1; i <= attributes->Size(); ++i) {
        const ZFXISpecAttribute_var& attribute = (*attributes)[i];
        if (attribute == nullptr)
            continue;
        const ZFXISpecObject_var owner(ZFXBaseUnknown_var::Attach(attribute->GetOwner()));
        if (owner != nullptr && owner->GetLateType() == Vocabulary::QVROruSimHistLT)
            return owner;
    }
    return {};
}

ParentSetResult FirstParentSetOf(const ZFXISpecObject_var& feature) {
    const ZFXISamAnalysisEntity_var entity(feature);
    if (entity == nullptr)
        return {ParentSetOutcome::NoEntity, S_OK, {}};
    ZFXListValZFXBaseUnknown_var* raw = nullptr;
    const HRESULT code = entity->GetParentSets(raw);
    const OwnedList sets(raw);
    if (Failed(code))
        return {ParentSetOutcome::RequestFailed, code, {}};
    if (sets == nullptr)
        return {ParentSetOutcome::NullList, code, {}};
    if (sets->Size() == 0)
        return {ParentSetOutcome::EmptyList, code, {}};
    return {ParentSetOutcome::Found, code, (*sets)[1]};
}

HRESULT AppendMembers(const ZFXISamAnalysisSet_var& set, ZFXListValZFXBaseUnknown_var& scope) {
    assert(set != nullptr);
    ZFXListValZFXISpecObject_var members;
    const HRESULT code = set->ListMembers(members, CLSID_ZFXBaseUnknown, ZFXISamAnalysisSet::kMemberFlag);
    scope.Reserve(scope.Size() + members.Size());
    for (ZFXISpecObject_var& member : members)
        scope.Append(std::move(member));
    return code;
}

} // namespace Navigation
