#pragma once

#include "LateTypes.h"
#include "memory-model/MemoryModel.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The vocabulary of a document file: the keys that an object of each kind takes, and the objects that they lead to.
// DocumentKeys.def is the table.

enum class DocumentKey : unsigned char {
#define DOCUMENT_KEY(key, spelling, owners) key,
#define DOCUMENT_OBJECT(key, spelling, owners, kind, defaultType) key,
#define DOCUMENT_LIST(key, spelling, owners, kind, defaultType) key,
#include "document/DocumentKeys.def"
#undef DOCUMENT_KEY
#undef DOCUMENT_OBJECT
#undef DOCUMENT_LIST
    Count,
};

inline constexpr std::size_t kDocumentKeyCount = static_cast<std::size_t>(DocumentKey::Count);

/// Returns the key with this spelling, or nothing if objects of the kind do not take it.
std::optional<DocumentKey> FindDocumentKey(std::string_view spelling, MemoryKind kind);
/// Returns the key as it is written in the file.
/// @pre `key` is not Count
const char* SpellingOf(DocumentKey key);
/// Returns the spellings of all keys that objects of the kind take.
std::vector<std::string> KeysFor(MemoryKind kind);

/// Returns true if the key leads to a list of objects.
bool IsList(DocumentKey key);

/// A key that leads to objects below its owner.
struct ChildKey {
    DocumentKey key;
    MemoryKind kind;         ///< of the objects
    const char* defaultType; ///< the late type of an object without the key "type"; null if the key is required
    bool isList;             ///< a list of objects, or one object
};

inline constexpr ChildKey kChildKeys[] = {
#define DOCUMENT_KEY(key, spelling, owners)
#define DOCUMENT_OBJECT(key, spelling, owners, kind, defaultType)                                                      \
    {DocumentKey::key, MemoryKind::kind, defaultType, false},
#define DOCUMENT_LIST(key, spelling, owners, kind, defaultType) {DocumentKey::key, MemoryKind::kind, defaultType, true},
#include "document/DocumentKeys.def"
#undef DOCUMENT_KEY
#undef DOCUMENT_OBJECT
#undef DOCUMENT_LIST
};
