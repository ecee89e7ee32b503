#include "QVRGenI18NUtils.h"

#include "QVRGenI18NUtils/Index.h"
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
    const int known = m_index->features.Of(feature);
    if (known != 0) {
        name = m_featureNames[known];
        return S_OK;
    }
    const int before = CountMet(lateType);
    name = QVRGenZFXUnicodeStringUtils::RemovePeriods(Numbering::Numbered(lateType + "-", before + 1));
    Remember(feature, name, lateType);
    return S_OK;
}

HRESULT QVRGenI18NUtils::GetFeatureName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept {
    const ZFXIAlias_var alias(feature);
    if (alias == nullptr)
        return E_FAIL;
    const ZFXUnicodeString display = alias->GetAlias();
    const int known = m_index->features.Of(feature);
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
    Remember(feature, name, {});
    return S_OK;
}

int QVRGenI18NUtils::CountMet(const ZFXUnicodeString& lateType) {
    if (lateType.IsNull() != 0) {
        // The feature did not answer: so did those that do not answer now.
        int silent = 0;
        for (const ZFXISpecObject_var& met : m_featureObjects)
            silent += met->GetLateType().IsNull() != 0 ? 1 : 0;
        return silent;
    }
    // Who was not asked yet, or did not answer, is asked now.
    std::erase_if(m_index->withoutLateType, [this](int position) {
        const ZFXUnicodeString learned = m_featureObjects[position]->GetLateType();
        if (learned.IsNull() == 0)
            m_index->lateTypes.Add(learned);
        return learned.IsNull() == 0;
    });
    return m_index->lateTypes.Of(lateType);
}

void QVRGenI18NUtils::Remember(const ZFXISpecObject_var& feature, const ZFXUnicodeString& name,
                               const ZFXUnicodeString& lateType) {
    m_featureObjects.Append(feature);
    m_featureNames.Append(name);
    const int position = m_featureObjects.Size();
    m_index->features.Add(feature, position);
    if (lateType.IsNull() == 0)
        m_index->lateTypes.Add(lateType);
    else
        m_index->withoutLateType.push_back(position);
}
