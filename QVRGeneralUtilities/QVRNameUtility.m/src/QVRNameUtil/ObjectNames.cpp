#include "QVRNameUtil.h"

#include "LateTypes.h"
#include "QVRGenZFXUnicodeStringUtils.h"
#include "analysis/ZFXIAlias.h"
#include "internal/InputErrors.h"
#include "internal/NameDecisions.h"
#include "internal/Numbering.h"

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
        return InputErrorReturn(QVR_HERE, MessageId::ZFXIAliasERR_01);
    name = QVRGenZFXUnicodeStringUtils::ReplacePeriodWithDash(alias->GetAlias());
    const HRESULT legal = IsNameValid(name, 1);
    if (Failed(legal) || !LateTypes::IsOfKind(lateType, LateTypes::Kind::BoltTightening))
        return legal;
    return Raise(QVR_HERE, NameDecisions::InScope(NameScopes::OfBoltTightening(feature), feature, {""}));
}

HRESULT QVRNameUtil::GenerateUniqueName(const ZFXISpecObject& feature, ZFXUnicodeString& name) noexcept {
    // The operations of ZFXISpecObject and ZFXIAlias are not const. Those called here do not change the feature.
    const ZFXISpecObject_var object(const_cast<ZFXISpecObject*>(&feature));
    const ZFXIAlias_var alias(object);
    if (alias == nullptr)
        return E_FAIL;
    const ZFXUnicodeString current = alias->GetAlias();
    ZFXUnicodeString offending;
    if (!Failed(DoesNameContainDoubleByteChar(current, offending))) {
        name = current;
        return S_OK;
    }
    const ZFXUnicodeString lateType = object->GetLateType();
    const bool isHostType = lateType.SearchSubString("SAM", 0, ZFXUnicodeString::SearchForward) == 0;
    name = isHostType ? Numbering::IssueGenericName(lateType) : current;
    return S_OK;
}
