#include "document/LoadedDocument.h"

#include <nlohmann/json.hpp>

std::vector<std::uint32_t> NamedEntries(const LoadedDocument& loaded) {
    std::vector<std::uint32_t> named;
    for (std::uint32_t entry = 0; entry < loaded.entries.size(); ++entry)
        if (loaded.entries[entry].isNamed)
            named.push_back(entry);
    return named;
}

EntriesByObject IndexByObject(const LoadedDocument& loaded) {
    EntriesByObject entries;
    for (std::uint32_t entry = 0; entry < loaded.entries.size(); ++entry)
        entries.emplace(loaded.entries[entry].feature.Object(), entry);
    return entries;
}

std::size_t OffsetOf(const LoadedDocument& loaded, std::uint32_t entry, DocumentKey key) {
    std::size_t offset = loaded.entries[entry].offset;
    loaded.text.ValueAt(offset).ForEachMember([&](JsonValue found, JsonValue value) {
        if (found.Text() == SpellingOf(key))
            offset = value.Begin();
    });
    return offset;
}

std::string TextWithName(const LoadedDocument& loaded, std::uint32_t entry, const std::string& name) {
    const JsonValue object = loaded.text.ValueAt(loaded.entries[entry].offset);
    const std::string literal = nlohmann::json(name).dump();
    std::string bytes = loaded.text.Bytes();
    JsonValue firstKey;
    JsonValue oldName;
    object.ForEachMember([&](JsonValue key, JsonValue value) {
        firstKey = firstKey ? firstKey : key;
        if (key.Text() == SpellingOf(DocumentKey::Name))
            oldName = value;
    });
    if (oldName)
        return bytes.replace(oldName.Begin(), oldName.Literal().size(), literal);
    const std::string member = nlohmann::json(SpellingOf(DocumentKey::Name)).dump() + ": " + literal;
    if (firstKey)
        return bytes.insert(firstKey.Begin(), member + ", ");
    return bytes.insert(object.Begin() + 1, member);
}
