#include "QVRGenI18NUtils.h"

#include "QVRGenI18NUtils/Index.h"
#include "QVRGenZFXUnicodeStringUtils.h"
#include "analysis/ZFXIAlias.h"
#include "analysis/ZFXIMaterialFeature.h"
#include "internal/Numbering.h"

#include <optional>

namespace {

/// What a material calls itself; nothing for one that has no name of either kind.
std::optional<ZFXUnicodeString> MaterialNameOf(const ZFXISpecObject_var& material) {
    if (const ZFXIMaterialFeature_var named(material); named != nullptr)
        return named->GetMaterialFeatureName();
    if (const ZFXIAlias_var alias(material); alias != nullptr)
        return alias->GetAlias();
    return std::nullopt;
}

} // namespace

HRESULT QVRGenI18NUtils::GetMaterialName(const ZFXISpecObject_var& material, ZFXUnicodeString& name) noexcept {
    const std::optional<ZFXUnicodeString> own = MaterialNameOf(material);
    if (!own)
        return E_FAIL;
    const int known = m_index->materials.Of(material);
    if (known != 0)
        name = *own;
    const int before = known != 0 ? known - 1 : m_materialObjects.Size();
    int count = 0;
    for (int i = 1; i <= before; ++i) {
        const std::optional<ZFXUnicodeString> met = MaterialNameOf(m_materialObjects[i]);
        if (!met)
            return E_FAIL;
        if (*met == *own)
            ++count;
    }
    if (known == 0)
        Meet(material);
    const ZFXUnicodeString numbered = count > 0 ? Numbering::Numbered(*own + "-", count) : *own;
    name = QVRGenZFXUnicodeStringUtils::ReplacePeriodWithDash(numbered);
    return S_OK;
}

HRESULT QVRGenI18NUtils::GetGenericEnglishMaterialName(const ZFXISpecObject_var& material,
                                                       ZFXUnicodeString& name) noexcept {
    if (material == nullptr)
        return E_FAIL;
    const ZFXUnicodeString lateType = material->GetLateType();
    int position = m_index->materials.Of(material);
    if (position == 0)
        position = Meet(material);
    name = QVRGenZFXUnicodeStringUtils::ReplacePeriodWithDash(Numbering::Numbered(lateType + "-", position));
    return S_OK;
}

int QVRGenI18NUtils::Meet(const ZFXISpecObject_var& material) {
    m_materialObjects.Append(material);
    m_index->materials.Add(material, m_materialObjects.Size());
    return m_materialObjects.Size();
}
