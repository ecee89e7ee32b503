#include "document/DocumentKeys.h"

#include <algorithm>
#include <cassert>
#include <unordered_map>

namespace {

using Kinds = unsigned;

template <class... Kind>
constexpr Kinds Of(Kind... kinds) {
    return (... | (1U << static_cast<unsigned>(kinds)));
}

constexpr Kinds kModel = Of(MemoryKind::Model);
constexpr Kinds kCase = Of(MemoryKind::Case);
constexpr Kinds kFeature = Of(MemoryKind::Feature);
constexpr Kinds kAll = ~0U;
constexpr Kinds kBelowModel = kAll & ~kModel;
/// The mesh manager exists in every document, so the file does not choose its type.
constexpr Kinds kCreated = kBelowModel & ~Of(MemoryKind::MeshManager);
/// Objects of these kinds can have features, sets, materials and so on below them.
constexpr Kinds kParents = kModel | kCase | kFeature | Of(MemoryKind::Step, MemoryKind::Set);

struct Row {
    const char* spelling;
    Kinds owners;
};

constexpr Row kRows[] = {
#define DOCUMENT_KEY(key, spelling, owners) {spelling, owners},
#define DOCUMENT_OBJECT(key, spelling, owners, kind, defaultType) {spelling, owners},
#define DOCUMENT_LIST(key, spelling, owners, kind, defaultType) {spelling, owners},
#include "document/DocumentKeys.def"
#undef DOCUMENT_KEY
#undef DOCUMENT_OBJECT
#undef DOCUMENT_LIST
};

bool IsFor(const Row& row, MemoryKind kind) { return (row.owners & Of(kind)) != 0; }

} // namespace

std::optional<DocumentKey> FindDocumentKey(std::string_view spelling, MemoryKind kind) {
    static const auto known = [] {
        std::unordered_map<std::string_view, std::size_t> rows;
        for (const Row& row : kRows)
            rows.emplace(row.spelling, static_cast<std::size_t>(&row - kRows));
        return rows;
    }();
    const auto found = known.find(spelling);
    if (found == known.end() || !IsFor(kRows[found->second], kind))
        return std::nullopt;
    return static_cast<DocumentKey>(found->second);
}

const char* SpellingOf(DocumentKey key) {
    assert(key != DocumentKey::Count);
    return kRows[static_cast<std::size_t>(key)].spelling;
}

bool IsList(DocumentKey key) {
    return std::ranges::any_of(kChildKeys, [&](const ChildKey& child) { return child.key == key && child.isList; });
}

std::vector<std::string> KeysFor(MemoryKind kind) {
    std::vector<std::string> keys;
    for (const Row& row : kRows)
        if (IsFor(row, kind))
            keys.emplace_back(row.spelling);
    return keys;
}
