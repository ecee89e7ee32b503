#include "document/FeaturePaths.h"

#include "BadInput.h"
#include "document/EditDistance.h"
#include "terminal/DisplayWidth.h"

#include <algorithm>
#include <cassert>
#include <optional>

namespace {

constexpr std::size_t kMaxCandidates = 10;

using Entries = std::vector<EntryIndex>;

std::string PathSegment(const DocumentEntry& entry) {
    const std::string name = entry.feature.StoredAlias().ConvertToChar();
    return name.empty() ? "\"\"" : name;
}

bool EndsWithSegments(const std::string& path, const std::string& reference) {
    return path.size() > reference.size() && path.ends_with(reference) &&
           path[path.size() - reference.size() - 1] == '/';
}

/// Returns as many segments from the end of the path as the reference has.
std::string LastSegments(const std::string& reference, const std::string& path) {
    auto begin = path.size();
    for (auto count = std::count(reference.begin(), reference.end(), '/') + 1; count > 0 && begin != std::string::npos;
         --count)
        begin = begin == 0 ? std::string::npos : path.rfind('/', begin - 1);
    return begin == std::string::npos ? path : path.substr(begin + 1);
}

/// Returns the objects whose id, or the last segments of whose path, are similar to the reference. The most similar
/// object comes first.
Entries ClosestEntries(const LoadedDocument& loaded, std::string reference) {
    reference.erase(reference.find_last_not_of('/') + 1);
    const double limit = 1 + static_cast<double>(reference.size()) / 3;
    std::vector<std::pair<double, EntryIndex>> near;
    for (const EntryIndex entry : NamedEntries(loaded))
        near.emplace_back(EditDistance(reference, LastSegments(reference, PathOf(loaded, entry)), limit), entry);
    for (const auto& [id, entry] : loaded.ids)
        near.emplace_back(EditDistance(reference, id, limit), entry);
    std::sort(near.begin(), near.end());
    Entries nearest;
    for (const auto& [distance, entry] : near)
        if (distance < limit && std::find(nearest.begin(), nearest.end(), entry) == nearest.end())
            nearest.push_back(entry);
    return nearest;
}

/// Returns the named objects that share the longest beginning of their pointers with `pointer`, in document order.
Entries EntriesNear(const LoadedDocument& loaded, const std::string& pointer) {
    Entries neighbours;
    std::size_t longest = 0;
    for (const EntryIndex entry : NamedEntries(loaded)) {
        const std::string at = PointerOf(loaded, entry) + "/";
        const auto differ = std::mismatch(at.begin(), at.end(), pointer.begin(), pointer.end());
        const auto common = at.rfind('/', static_cast<std::size_t>(differ.first - at.begin()));
        if (common > longest)
            neighbours.clear();
        longest = std::max(longest, common);
        if (common == longest)
            neighbours.push_back(entry);
    }
    return neighbours;
}

std::string CandidateLines(const LoadedDocument& loaded, const Entries& entries) {
    std::string lines;
    for (std::size_t i = 0; i < std::min(entries.size(), kMaxCandidates); ++i)
        lines += "\n  " + Printable(DisplayPath(loaded, entries[i])) +
                 (loaded.entries[entries[i]].isNamed ? "  (" + PointerOf(loaded, entries[i]) + ")" : "");
    if (entries.size() > kMaxCandidates)
        lines += "\n  and " + std::to_string(entries.size() - kMaxCandidates) + " more";
    return lines;
}

std::optional<EntryIndex> FindByPointer(const LoadedDocument& loaded, const std::string& pointer) {
    const JsonValue value = loaded.text.Find(pointer);
    if (!value)
        return std::nullopt;
    for (EntryIndex entry = 0; entry < loaded.entries.size(); ++entry)
        if (loaded.entries[entry].offset == value.Begin())
            return entry;
    return std::nullopt;
}

Entries FindByPath(const LoadedDocument& loaded, const std::string& reference) {
    Entries exact;
    Entries ends;
    for (const EntryIndex entry : NamedEntries(loaded)) {
        const std::string path = PathOf(loaded, entry);
        if (path == reference)
            exact.push_back(entry);
        else if (EndsWithSegments(path, reference))
            ends.push_back(entry);
    }
    return exact.empty() ? ends : exact;
}

} // namespace

std::string PathOf(const LoadedDocument& loaded, EntryIndex entry) {
    assert(entry < loaded.entries.size());
    std::string path;
    for (; entry != DocumentEntry::kNone; entry = loaded.entries[entry].parent) {
        if (!loaded.entries[entry].isNamed)
            continue;
        if (!path.empty())
            path.insert(0, "/");
        path.insert(0, PathSegment(loaded.entries[entry]));
    }
    return path;
}

std::string PointerOf(const LoadedDocument& loaded, EntryIndex entry) {
    assert(entry < loaded.entries.size());
    std::string pointer;
    for (; loaded.entries[entry].parent != DocumentEntry::kNone; entry = loaded.entries[entry].parent) {
        const DocumentEntry& at = loaded.entries[entry];
        if (at.index != DocumentEntry::kNone)
            pointer.insert(0, "/" + std::to_string(at.index));
        pointer.insert(0, SpellingOf(at.key));
        pointer.insert(0, "/");
    }
    return pointer;
}

std::string DisplayPath(const LoadedDocument& loaded, EntryIndex entry) {
    assert(entry < loaded.entries.size());
    const std::string path = loaded.entries[entry].isNamed ? PathOf(loaded, entry) : "";
    return path.empty() || path.starts_with('/') ? PointerOf(loaded, entry) : path;
}

EntryIndex FindEntry(const LoadedDocument& loaded, const std::string& reference) {
    if (const auto known = loaded.ids.find(reference); known != loaded.ids.end())
        return known->second;
    if (reference.starts_with('/')) {
        if (const auto found = FindByPointer(loaded, reference))
            return *found;
        throw BadInput("the JSON pointer \"" + reference +
                       "\" does not lead to an object of the document; nearby objects:" +
                       CandidateLines(loaded, EntriesNear(loaded, reference)));
    }
    const Entries found = FindByPath(loaded, reference);
    if (found.size() == 1)
        return found.front();
    if (found.empty()) {
        const Entries nearest = ClosestEntries(loaded, reference);
        throw BadInput("no feature has the id or path \"" + reference + "\"; " +
                       (nearest.empty() ? "available features:" + CandidateLines(loaded, NamedEntries(loaded))
                                        : "did you mean:" + CandidateLines(loaded, nearest)));
    }
    throw BadInput("\"" + reference +
                   "\" matches several features; specify one by its id, its full path or its JSON"
                   " pointer:" +
                   CandidateLines(loaded, found));
}
