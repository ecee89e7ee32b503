#include "internal/ScopeIndex.h"

#include "analysis/ZFXIAlias.h"

const std::optional<ZFXUnicodeString>& NameCache::Of(const ZFXBaseUnknown_var& object) {
    const auto [entry, isNew] = m_names.try_emplace(ZFXIdentityOf(object));
    if (isNew)
        if (const ZFXIAlias_var alias(object); alias != nullptr)
            entry->second = alias->GetAlias();
    return entry->second;
}

void ScopeIndex::Add(const ZFXListValZFXBaseUnknown_var& features, bool namelessAsEmpty) {
    static const ZFXUnicodeString kEmpty;
    m_owners.reserve(m_owners.size() + static_cast<std::size_t>(features.Size()));
    for (const ZFXBaseUnknown_var& feature : features) {
        const std::size_t position = m_features.size();
        m_features.push_back(feature);
        const std::optional<ZFXUnicodeString>& name = m_names.Of(feature);
        if (!name && !namelessAsEmpty) {
            m_firstNameless = m_firstNameless.value_or(position);
            continue;
        }
        const auto [entry, isNew] = m_owners.try_emplace(name ? &*name : &kEmpty, Owners{position});
        Owners& owners = entry->second;
        if (!isNew && !owners.second && m_features[owners.first] != feature)
            owners.second = position;
    }
}

Decision ScopeIndex::Compare(const ZFXBaseUnknown_var& self, const ZFXUnicodeString& name) const {
    std::optional<std::size_t> clash;
    if (const auto entry = m_owners.find(&name); entry != m_owners.end()) {
        const Owners& owners = entry->second;
        clash = m_features[owners.first] == self ? owners.second : owners.first;
    }
    const bool isNamelessFirst = m_firstNameless && (!clash || *m_firstNameless < *clash);
    if (isNamelessFirst)
        return {.rule = MessageId::ZFXIAliasERR_01, .other = m_features[*m_firstNameless]};
    if (clash)
        return {.rule = MessageId::DuplicateNameERR_02, .other = m_features[*clash]};
    return {};
}
