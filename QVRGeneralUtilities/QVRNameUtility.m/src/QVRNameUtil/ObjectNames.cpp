#include "QVRNameUtil.h"

#include "LateTypes.h"
#include "QVRGenZFXUnicodeStringUtils.h"
#include "analysis/ZFXIAlias.h"
#include "internal/Navigation.h"
#include "internal/Ownership.h"
#include "internal/Refusal.h"

HRESULT QVRNameUtil::GetObjectName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept {
    if (feature == nullptr)
        return E_FAIL;
    name = "";
    const ZFXIAlias_var alias(feature);
    if (alias == nullptr)
        return E_FAIL;
    name = alias->GetAlias();
    return S_OK;
}

HRESULT QVRNameUtil::GetMorvelObjectName(ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept {
    if (feature == nullptr)
        return E_FAIL;
    const ZFXUnicodeString lateType = feature->GetLateType();
    const ZFXIAlias_var alias(feature);
    if (alias == nullptr)
        return InputErrorReturn(MessageId::ZFXIAliasERR_01);
    name = QVRGenZFXUnicodeStringUtils::ReplacePeriodWithDash(alias->GetAlias());
    const HRESULT legal = IsNameValid(name, 1);
    if (Failed(legal) || !LateTypes::IsOfKind(lateType, LateTypes::Kind::BoltTightening))
        return legal;
    const ZFXISamAnalysisScan_var father(TakeOver(feature->GetFather()));
    if (father == nullptr)
        return InputErrorReturn(MessageId::ParentERR_01);
    ZFXListValZFXBaseUnknown_var siblings;
    father->ListChildren(siblings, ZFXISamAnalysisScan::kScanMode); // the list counts, not the code
    const HRESULT unique = IsNameUniqueInSet(feature, siblings, "");
    return Failed(unique) ? InputErrorReturn(MessageId::DuplicateZFXNameERR_01) : unique;
}
