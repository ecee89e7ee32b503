#include "document/LoadedDocument.h"

#include <nlohmann/json.hpp>

#include <map>

std::vector<EntryIndex> NamedEntries(const LoadedDocument& loaded) {
    std::vector<EntryIndex> named;
    for (EntryIndex entry = 0; entry < loaded.entries.size(); ++entry)
        if (loaded.entries[entry].isNamed)
            named.push_back(entry);
    return named;
}

EntryIndex CaseOf(const LoadedDocument& loaded, EntryIndex entry) {
    while (entry != 0 && loaded.entries[entry].key != DocumentKey::Cases)
        entry = loaded.entries[entry].parent;
    return entry;
}

EntriesByObject IndexByObject(const LoadedDocument& loaded) {
    EntriesByObject entries;
    for (EntryIndex entry = 0; entry < loaded.entries.size(); ++entry)
        entries.emplace(loaded.entries[entry].feature.Object(), entry);
    return entries;
}

std::size_t OffsetOf(const LoadedDocument& loaded, EntryIndex entry, DocumentKey key) {
    std::size_t offset = loaded.entries[entry].offset;
    loaded.text.ValueAt(offset).ForEachMember([&](JsonValue found, JsonValue value) {
        if (found.Text() == SpellingOf(key))
            offset = value.Begin();
    });
    return offset;
}

std::string TextWithNames(const LoadedDocument& loaded, const std::vector<EntryName>& names) {
    struct Change {
        std::size_t length; ///< of the replaced bytes
        std::string bytes;
    };
    std::map<std::size_t, Change> changes; // by offset
    for (const auto& [entry, name] : names) {
        const JsonValue object = loaded.text.ValueAt(loaded.entries[entry].offset);
        const std::string literal = nlohmann::json(name).dump();
        JsonValue firstKey;
        JsonValue oldName;
        object.ForEachMember([&](JsonValue key, JsonValue value) {
            firstKey = firstKey ? firstKey : key;
            if (key.Text() == SpellingOf(DocumentKey::Name))
                oldName = value;
        });
        const std::string member = nlohmann::json(SpellingOf(DocumentKey::Name)).dump() + ": " + literal;
        if (oldName)
            changes[oldName.Begin()] = {oldName.Literal().size(), literal};
        else if (firstKey)
            changes[firstKey.Begin()] = {0, member + ", "};
        else
            changes[object.Begin() + 1] = {0, member};
    }
    const std::string& former = loaded.text.Bytes();
    std::string bytes;
    std::size_t copied = 0;
    for (const auto& [offset, change] : changes) {
        bytes.append(former, copied, offset - copied).append(change.bytes);
        copied = offset + change.length;
    }
    return bytes.append(former, copied);
}
