#include "document/FeaturePaths.h"

#include "ExitCode.h"
#include "document/EditDistance.h"
#include "terminal/DisplayWidth.h"

#include <algorithm>
#include <optional>

namespace {

constexpr std::size_t kMostCandidates = 10;

using Entries = std::vector<std::uint32_t>;

std::string NameOf(const DocumentEntry& entry) {
    const std::string name = entry.feature.StoredAlias().ConvertToChar();
    return name.empty() ? "\"\"" : name;
}

bool IsEndOf(const std::string& path, const std::string& words) {
    return path.size() > words.size() && path.ends_with(words) && path[path.size() - words.size() - 1] == '/';
}

/// As many parts of the end of the path as the words have.
std::string EndLike(const std::string& words, const std::string& path) {
    auto begin = path.size();
    for (auto parts = std::count(words.begin(), words.end(), '/') + 1; parts > 0 && begin != std::string::npos; --parts)
        begin = begin == 0 ? std::string::npos : path.rfind('/', begin - 1);
    return begin == std::string::npos ? path : path.substr(begin + 1);
}

/// The features whose ids, paths or ends of paths come near to the words, the nearest first.
Entries Nearest(const LoadedDocument& loaded, std::string words) {
    words.erase(words.find_last_not_of('/') + 1);
    const double limit = 1 + static_cast<double>(words.size()) / 3;
    std::vector<std::pair<double, std::uint32_t>> near;
    for (const std::uint32_t entry : NamedEntries(loaded))
        near.emplace_back(EditDistance(words, EndLike(words, PathOf(loaded, entry)), limit), entry);
    for (const auto& [id, entry] : loaded.ids)
        near.emplace_back(EditDistance(words, id, limit), entry);
    std::sort(near.begin(), near.end());
    Entries nearest;
    for (const auto& [distance, entry] : near)
        if (distance < limit && std::find(nearest.begin(), nearest.end(), entry) == nearest.end())
            nearest.push_back(entry);
    return nearest;
}

/// The named objects whose pointers begin most like this one, in document order.
Entries Neighbours(const LoadedDocument& loaded, const std::string& pointer) {
    Entries neighbours;
    std::size_t longest = 0;
    for (const std::uint32_t entry : NamedEntries(loaded)) {
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

std::string Candidates(const LoadedDocument& loaded, const Entries& entries) {
    std::string lines;
    for (std::size_t i = 0; i < std::min(entries.size(), kMostCandidates); ++i)
        lines += "\n  " + Printable(TellingOf(loaded, entries[i])) +
                 (loaded.entries[entries[i]].isNamed ? "  (" + PointerOf(loaded, entries[i]) + ")" : "");
    if (entries.size() > kMostCandidates)
        lines += "\n  and " + std::to_string(entries.size() - kMostCandidates) + " more";
    return lines;
}

std::optional<std::uint32_t> FindByPointer(const LoadedDocument& loaded, const std::string& pointer) {
    const JsonValue value = loaded.text.At(pointer);
    if (!value)
        return std::nullopt;
    for (std::uint32_t entry = 0; entry < loaded.entries.size(); ++entry)
        if (loaded.entries[entry].begin == value.Begin())
            return entry;
    return std::nullopt;
}

Entries FindByPath(const LoadedDocument& loaded, const std::string& words) {
    Entries exact;
    Entries ends;
    for (const std::uint32_t entry : NamedEntries(loaded)) {
        const std::string path = PathOf(loaded, entry);
        if (path == words)
            exact.push_back(entry);
        else if (IsEndOf(path, words))
            ends.push_back(entry);
    }
    return exact.empty() ? ends : exact;
}

} // namespace

std::string PathOf(const LoadedDocument& loaded, std::uint32_t entry) {
    std::string path;
    for (; entry != DocumentEntry::kNone; entry = loaded.entries[entry].parent) {
        if (!loaded.entries[entry].isNamed)
            continue;
        if (!path.empty())
            path.insert(0, "/");
        path.insert(0, NameOf(loaded.entries[entry]));
    }
    return path;
}

std::string PointerOf(const LoadedDocument& loaded, std::uint32_t entry) {
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

std::string TellingOf(const LoadedDocument& loaded, std::uint32_t entry) {
    return loaded.entries[entry].isNamed ? PathOf(loaded, entry) : PointerOf(loaded, entry);
}

std::uint32_t FindFeature(const LoadedDocument& loaded, const std::string& words) {
    if (const auto known = loaded.ids.find(words); known != loaded.ids.end())
        return known->second;
    if (words.starts_with('/')) {
        if (const auto found = FindByPointer(loaded, words))
            return *found;
        throw BadInput("the JSON pointer \"" + words + "\" leads to no object of the document; near it are:" +
                       Candidates(loaded, Neighbours(loaded, words)));
    }
    const Entries found = FindByPath(loaded, words);
    if (found.size() == 1)
        return found.front();
    if (found.empty()) {
        const Entries nearest = Nearest(loaded, words);
        throw BadInput("no feature has the id, the path or the end of a path \"" + words + "\"; " +
                       (nearest.empty() ? "there are:" + Candidates(loaded, NamedEntries(loaded))
                                        : "did you mean:" + Candidates(loaded, nearest)));
    }
    throw BadInput("\"" + words +
                   "\" may be each of these features; tell one by its id, its whole path or its"
                   " JSON pointer:" +
                   Candidates(loaded, found));
}
