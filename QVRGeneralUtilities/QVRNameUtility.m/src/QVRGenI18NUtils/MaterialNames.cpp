#include "QVRGenI18NUtils.h"

#include "QVRGenI18NUtils/Index.h"
#include "QVRGenZFXUnicodeStringUtils.h"
#include "analysis/ZFXIAlias.h"
#include "analysis/ZFXIMaterialFeature.h"
#include "internal/Numbering.h"

#include <optional>

namespace {

/// Returns the material name of an object that offers ZFXIMaterialFeature. Returns the alias of any other object, or
/// nothing if it has none.
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
    const int listed = m_index->materials.Locate(material);
    if (listed != 0)
        name = *own;
    const int before = listed != 0 ? listed - 1 : m_materialObjects.Size();
    int count = 0;
    for (int i = 1; i <= before; ++i) {
        const std::optional<ZFXUnicodeString> other = MaterialNameOf(m_materialObjects[i]);
        if (!other)
            return E_FAIL;
        if (*other == *own)
            ++count;
    }
    if (listed == 0)
        m_index->materials.Append(material);
    name = QVRGenZFXUnicodeStringUtils::ReplacePeriodWithDash(Numbering::DistinctName(*own, count));
    return S_OK;
}

HRESULT QVRGenI18NUtils::GetGenericEnglishMaterialName(const ZFXISpecObject_var& material,
                                                       ZFXUnicodeString& name) noexcept {
    if (material == nullptr)
        return E_FAIL;
    const ZFXUnicodeString lateType = material->GetLateType();
    int position = m_index->materials.Locate(material);
    if (position == 0) {
        m_index->materials.Append(material);
        position = m_materialObjects.Size();
    }
    name = QVRGenZFXUnicodeStringUtils::ReplacePeriodWithDash(Numbering::NumberedName(lateType + "-", position));
    return S_OK;
}
