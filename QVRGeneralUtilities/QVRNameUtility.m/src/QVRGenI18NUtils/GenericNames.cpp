#include "QVRGenI18NUtils.h"

#include "QVRGenI18NUtils/Index.h"
#include "QVRGenZFXUnicodeStringUtils.h"
#include "analysis/ZFXIAlias.h"
#include "internal/GenericEnglishNames.h"
#include "internal/Numbering.h"

HRESULT QVRGenI18NUtils::GetGenericEnglishName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept {
    return GenericEnglishNames().Of(feature, name);
}

HRESULT QVRGenI18NUtils::GetGenericEnglishFeatureName(const ZFXISpecObject_var& feature,
                                                      ZFXUnicodeString& name) noexcept {
    if (feature == nullptr)
        return E_FAIL;
    if (const int listed = m_index->features.Locate(feature); listed != 0) {
        name = m_featureNames[listed];
        return S_OK;
    }
    const ZFXUnicodeString lateType = feature->GetLateType();
    const int number = m_index->lateTypes.NbOccur(lateType) + 1;
    name = QVRGenZFXUnicodeStringUtils::RemovePeriods(Numbering::NumberedName(lateType + "-", number));
    m_index->AddFeature(feature, name, lateType);
    return S_OK;
}

HRESULT QVRGenI18NUtils::GetFeatureName(const ZFXISpecObject_var& feature, ZFXUnicodeString& name) noexcept {
    const ZFXIAlias_var alias(feature);
    if (alias == nullptr)
        return E_FAIL;
    const ZFXUnicodeString display = alias->GetAlias();
    if (const int listed = m_index->features.Locate(feature); listed != 0) {
        name = m_featureNames[listed];
        return S_OK;
    }
    int count = 0;
    for (const ZFXISpecObject_var& listed : m_featureObjects) {
        const ZFXIAlias_var listedAlias(listed);
        if (listedAlias == nullptr)
            return E_FAIL;
        if (listedAlias->GetAlias() == display)
            ++count;
    }
    name = QVRGenZFXUnicodeStringUtils::RemovePeriods(Numbering::DistinctName(display, count));
    m_index->AddFeature(feature, name, feature->GetLateType());
    return S_OK;
}
