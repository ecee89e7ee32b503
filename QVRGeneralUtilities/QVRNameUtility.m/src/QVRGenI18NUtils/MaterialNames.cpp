#include "QVRGenI18NUtils.h"

#include "QVRGenI18NUtils/Index.h"
#include "QVRGenZFXUnicodeStringUtils.h"
#include "analysis/ZFXIAlias.h"
#include "analysis/ZFXIMaterialFeature.h"
#include "internal/Numbering.h"

#include <optional>
#include <unordered_map>
#include <vector>

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

/// The listed materials by name. Requests each name at most once. Counting stops at the first material without a name.
class ListedMaterials {
public:
    explicit ListedMaterials(const ZFXListValZFXISpecObject_var& materials) : m_materials(materials) {}

    /// Returns the name of the material at a position, or nothing if it has none.
    const std::optional<ZFXUnicodeString>& NameAt(int position) {
        const auto [entry, isNew] = m_names.try_emplace(position);
        if (isNew)
            entry->second = MaterialNameOf(m_materials[position]);
        return entry->second;
    }
    /// Records the name of the material that was listed last.
    void SetNameOfLast(const ZFXUnicodeString& name) { m_names.emplace(m_materials.Size(), name); }

    /// Returns how many of the materials before a position have the name, or nothing if one of them has no name.
    /// @param name  the name of the material at the position; of a new material if the position is one after the last
    std::optional<int> CountBefore(int position, const ZFXUnicodeString& name) {
        for (; m_counted < position - 1; ++m_counted) {
            const std::optional<ZFXUnicodeString>& next = NameAt(m_counted + 1);
            if (!next)
                return std::nullopt;
            m_earlier.push_back(m_total[*next]++);
        }
        return position <= m_counted ? m_earlier[static_cast<std::size_t>(position - 1)] : m_total[name];
    }

private:
    struct Hash {
        std::size_t operator()(const ZFXUnicodeString& name) const noexcept { return HashOf(name); }
    };

    const ZFXListValZFXISpecObject_var& m_materials;
    std::unordered_map<int, std::optional<ZFXUnicodeString>> m_names; // by position
    std::unordered_map<ZFXUnicodeString, int, Hash> m_total;          // of the first m_counted materials
    std::vector<int> m_earlier; // for each of them: the number of materials before it that have its name
    int m_counted = 0;
};

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

HRESULT QVRGenI18NUtils::GetMaterialNames(const ZFXListValZFXISpecObject_var& materials,
                                          ZFXListValZFXUnicodeString& names) noexcept {
    ListedMaterials listed(m_materialObjects);
    HRESULT code = S_OK;
    for (const ZFXISpecObject_var& material : materials) {
        const int position = m_index->materials.Locate(material);
        const bool isListed = position != 0;
        const std::optional<ZFXUnicodeString> own = isListed ? listed.NameAt(position) : MaterialNameOf(material);
        const std::optional<int> count =
            own ? listed.CountBefore(isListed ? position : m_materialObjects.Size() + 1, *own) : std::nullopt;
        if (!count) {
            names.Append(own && isListed ? *own : ZFXUnicodeString());
            code = E_FAIL;
            continue;
        }
        if (!isListed) {
            m_index->materials.Append(material);
            listed.SetNameOfLast(*own);
        }
        names.Append(QVRGenZFXUnicodeStringUtils::ReplacePeriodWithDash(Numbering::DistinctName(*own, *count)));
    }
    return code;
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
