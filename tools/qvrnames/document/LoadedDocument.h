#pragma once

#include "document/DocumentKeys.h"
#include "document/JsonText.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

/// The position of an object in LoadedDocument::entries.
using EntryIndex = std::uint32_t;

/// An object of the document and its position in the file.
struct DocumentEntry {
    static constexpr EntryIndex kNone = ~0U;

    MemoryFeature feature;
    std::uint32_t offset = 0;    ///< of the JSON object in the file, in bytes
    EntryIndex parent = kNone;   ///< the entry of the JSON object around this one; kNone for the model
    std::uint32_t index = kNone; ///< 0-based position in the list of the parent; kNone if the object is not in a list
    DocumentKey key = DocumentKey::Count; ///< the key of the parent that leads to this object; Count for the model
    bool isNamed = false;                 ///< the file contains a name for it
};

/// A document file and the analysis document built from it. The document is installed as that of the process as long as
/// this object exists. Entry 0 is the analysis model. A parent comes before the objects below it.
struct LoadedDocument {
    /// Throws BadInput with the position of the first error if the text is not a document.
    explicit LoadedDocument(std::string bytes);

    JsonText text;
    MemoryModel model;
    MemoryDocument document;
    std::vector<DocumentEntry> entries;
    std::unordered_map<std::string, EntryIndex> ids; ///< the entries by the value of their key "id"
};

/// Returns the entries that have a name in the file, in document order.
[[nodiscard]] std::vector<EntryIndex> NamedEntries(const LoadedDocument& loaded);

/// Returns the case around an entry in the file, or the model if there is none.
[[nodiscard]] EntryIndex CaseOf(const LoadedDocument& loaded, EntryIndex entry);

using EntriesByObject = std::unordered_map<const ZFXBaseUnknown*, EntryIndex>;
/// Returns the entries by the identity of their objects.
[[nodiscard]] EntriesByObject IndexByObject(const LoadedDocument& loaded);

/// Returns the offset of the value of the entry's key in the file, or of its JSON object if it lacks the key.
[[nodiscard]] std::size_t OffsetOf(const LoadedDocument& loaded, EntryIndex entry, DocumentKey key);

/// A new name of an entry.
struct EntryName {
    EntryIndex entry;
    std::string name;
};
/// Returns the text of the file with other names for some entries. All other bytes are unchanged. If an entry has no
/// name yet, the key "name" is inserted before its other keys.
/// @param names  at most one per entry
[[nodiscard]] std::string TextWithNames(const LoadedDocument& loaded, const std::vector<EntryName>& names);
