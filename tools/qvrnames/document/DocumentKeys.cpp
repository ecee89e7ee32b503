#include "document/DocumentKeys.h"

#include <algorithm>
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
/// The mesh manager is there from the start.
constexpr Kinds kMade = kBelowModel & ~Of(MemoryKind::MeshManager);
/// What can have features of any kind below it.
constexpr Kinds kHolders = kModel | kCase | kFeature | Of(MemoryKind::Step, MemoryKind::Set);

struct Row {
    const char* spelling;
    Kinds kinds;
};

/// In the order of DocumentKey.
constexpr Row kRows[] = {
    {"$schema", kModel},
    {"comment", kAll},
    {"id", kAll},
    {"type", kMade},
    {"name", kBelowModel},
    {"father", kBelowModel},
    {"attributes", kAll},
    {"offers", kAll},
    {"withholds", kAll},
    {"pointedAtBy", kAll},
    {"current", kCase},
    {"solverCase", kCase},
    {"propagated", kFeature},
    {"property", kFeature},
    {"amplitude", kFeature},
    {"holds", Of(MemoryKind::Set, MemoryKind::JobContainer)},
    {"tag", Of(MemoryKind::MeshPart)},
    {"materialName", Of(MemoryKind::Material)},
    {"group", Of(MemoryKind::Connector)},
    {"meshManager", kModel},
    {"propertySet", kModel},
    {"cases", kModel},
    {"history", kCase},
    {"steps", kCase},
    {"jobs", kCase | Of(MemoryKind::JobContainer)},
    {"jobContainers", kCase},
    {"sets", kHolders},
    {"features", kHolders},
    {"materials", kHolders},
    {"groups", kHolders},
    {"supports", kHolders},
    {"connectors", kHolders | Of(MemoryKind::Support)},
    {"master", Of(MemoryKind::ConnectionDesign)},
    {"slave", Of(MemoryKind::ConnectionDesign)},
    {"connectionDesigns", kHolders},
    {"meshParts", Of(MemoryKind::MeshManager)},
};
static_assert(std::size(kRows) == kDocumentKeys);

bool IsFor(const Row& row, MemoryKind kind) { return (row.kinds & Of(kind)) != 0; }

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

const char* SpellingOf(DocumentKey key) { return kRows[static_cast<std::size_t>(key)].spelling; }

std::vector<std::string> KeysOf(MemoryKind kind) {
    std::vector<std::string> keys;
    for (const Row& row : kRows)
        if (IsFor(row, kind))
            keys.emplace_back(row.spelling);
    return keys;
}
