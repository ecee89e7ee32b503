#include "QVRNameUtil.h"

#include "analysis/ZFXIAlias.h"
#include "analysis/ZFXISamAnalysisModel.h"
#include "internal/InputErrors.h"
#include "internal/Navigation.h"
#include "internal/ScopeNames.h"
#include "internal/Vocabulary.h"

#include <tuple>

HRESULT QVRNameUtil::IsNameUniqueInSet(const ZFXISpecObject_var& feature, const ZFXListValZFXBaseUnknown_var& scope,
                                       const ZFXUnicodeString& name) noexcept {
    const ZFXIAlias_var ownAlias(feature);
    if (ownAlias == nullptr && name.IsNull() != 0)
        return InputErrorReturn(MessageId::ZFXIAliasERR_01);
    const ZFXUnicodeString candidate = name.IsNull() != 0 ? ownAlias->GetAlias() : name;
    const ZFXBaseUnknown* self = ZFXIdentityOf(feature);
    HRESULT code = S_OK;
    ForEachPrefetched(scope, [&](const ZFXBaseUnknown_var& other) {
        if (ZFXIdentityOf(other) == self)
            return true;
        const ZFXIAlias_var alias(other);
        if (alias == nullptr)
            code = InputErrorReturn(MessageId::ZFXIAliasERR_01);
        else if (NamesClash(candidate, alias->GetAlias()))
            code = InputErrorReturn(MessageId::DuplicateNameERR_02, {.returnCode = kNameRejected});
        return !Failed(code);
    });
    return code;
}

HRESULT QVRNameUtil::IsNameUniqueAcrossCases(ZFXISpecObject_var& feature, const ZFXUnicodeString& name) noexcept {
    using Navigation::ParentSetOutcome;
    const Navigation::ParentSetResult parent = Navigation::FirstParentSetOf(feature);
    if (parent.outcome == ParentSetOutcome::EmptyList)
        return E_FAIL;
    if (parent.outcome != ParentSetOutcome::Found)
        return parent.code;
    const ZFXISpecObject_var set(parent.set);
    const ZFXISamAnalysisModel_var model(set == nullptr ? ZFXBaseUnknown_var()
                                                        : ZFXBaseUnknown_var::Attach(set->GetFather()));
    if (model == nullptr)
        return E_FAIL;
    ZFXListValZFXBaseUnknown_var cases;
    std::ignore = model->ListAnalysisCases(cases); // the list counts, not the code
    for (int i = 1; i <= cases.Size(); ++i) {
        const ZFXISamAnalysisScan_var scan(cases[i]);
        if (scan == nullptr)
            return E_FAIL;
        ZFXListValZFXBaseUnknown_var containers;
        // The list counts, not the code.
        std::ignore =
            scan->FindObjectsOfType(Vocabulary::QVRJobContainerLT, containers, ZFXISamAnalysisScan::kScanMode);
        if (containers.Size() == 0)
            continue;
        const ZFXISamAnalysisSet_var container(containers[1]);
        if (container == nullptr)
            return E_FAIL;
        ZFXListValZFXBaseUnknown_var jobs;
        HRESULT code = Navigation::AppendMembers(container, jobs);
        if (!Failed(code))
            code = IsNameUniqueInSet(feature, jobs, name);
        if (Failed(code))
            return code;
    }
    return S_OK;
}
