#include "QVRGenI18NUtils.h"

#include "QVRGenZFXUnicodeStringUtils.h"
#include "analysis/ZFXIAlias.h"
#include "analysis/ZFXISamAnalysisSet.h"
#include "internal/Numbering.h"
#include "internal/Ownership.h"
#include "internal/Platform.h"
#include "internal/Refusal.h"

HRESULT QVRGenI18NUtils::GetGenericEnglishName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept {
    if (feature == nullptr)
        return InputErrorReturn(MessageId::GetGenericEnglishNameERR_01);
    const ZFXISamAnalysisSet_var set(TakeOver(feature->GetFather()));
    ZFXListValZFXISpecObject_var members;
    if (set == nullptr || Failed(set->ListMembers(members, CLSID_ZFXBaseUnknown, kMemberFlag)))
        return InputErrorReturn(MessageId::GetGenericEnglishNameERR_01);
    const int position = members.Locate(feature, 1);
    if (position == 0)
        return InputErrorReturn(MessageId::GetGenericEnglishNameERR_01);
    name = Numbering::Numbered(feature->GetLateType() + "-", position);
    return S_OK;
}

HRESULT QVRGenI18NUtils::GetGenericEnglishFeatureName(const ZFXISpecObject_var& feature,
                                                      ZFXUnicodeString& name) noexcept {
    if (feature == nullptr)
        return E_FAIL;
    const ZFXUnicodeString lateType = feature->GetLateType();
    const int known = m_featureObjects.Locate(feature, 1);
    if (known != 0) {
        name = m_featureNames[known];
        return S_OK;
    }
    int count = 1;
    for (int i = 1; i <= m_featureObjects.Size(); ++i)
        if (m_featureObjects[i]->GetLateType() == lateType)
            ++count;
    name = QVRGenZFXUnicodeStringUtils::RemovePeriods(Numbering::Numbered(lateType + "-", count));
    m_featureObjects.Append(feature);
    m_featureNames.Append(name);
    return S_OK;
}

HRESULT QVRGenI18NUtils::GetFeatureName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept {
    const ZFXIAlias_var alias(feature);
    if (alias == nullptr)
        return E_FAIL;
    const ZFXUnicodeString display = alias->GetAlias();
    const int known = m_featureObjects.Locate(feature, 1);
    if (known != 0) {
        name = m_featureNames[known];
        return S_OK;
    }
    int count = 0;
    for (int i = 1; i <= m_featureObjects.Size(); ++i) {
        const ZFXIAlias_var met(m_featureObjects[i]);
        if (met == nullptr)
            return E_FAIL;
        if (met->GetAlias() == display)
            ++count;
    }
    const ZFXUnicodeString numbered = count > 0 ? Numbering::Numbered(display + "-", count) : display;
    name = QVRGenZFXUnicodeStringUtils::RemovePeriods(numbered);
    m_featureObjects.Append(feature);
    m_featureNames.Append(name);
    return S_OK;
}
