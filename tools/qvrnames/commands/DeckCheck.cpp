#include "commands/DeckCheck.h"

#include "commands/Rules.h"
#include "document/FeaturePaths.h"

#include <string_view>
#include <unordered_map>
#include <utility>

namespace {

/// Returns the case above an object, or the model if there is none.
std::uint32_t CaseOf(const LoadedDocument& loaded, std::uint32_t entry) {
    while (entry != 0 && ZFXISamAnalysisCase_var(loaded.entries[entry].feature) == nullptr)
        entry = loaded.entries[entry].parent;
    return entry;
}

/// Returns the path of `other`, or its JSON pointer if `entry` has the same path.
std::string OtherPath(const LoadedDocument& loaded, std::uint32_t other, std::uint32_t entry) {
    const std::string path = DisplayPath(loaded, other);
    return path == DisplayPath(loaded, entry) ? PointerOf(loaded, other) : path;
}

/// The names in one column and the objects that have them. Features of different cases do not clash, because each case
/// has its own deck.
class UsedNames {
public:
    explicit UsedNames(const LoadedDocument& loaded) : m_loaded(loaded) {}

    /// Returns the object that already has the name. Records `entry` and returns nothing if the name is new.
    std::optional<std::uint32_t> FindOwnerOrAdd(const DeckSection& section, std::uint32_t entry,
                                                const std::string& name) {
        const std::uint32_t analysisCase = std::string_view(section.key) == "features" ? CaseOf(m_loaded, entry) : 0;
        const auto [owner, isNew] = m_owners.try_emplace({analysisCase, name.c_str()}, entry);
        return isNew ? std::nullopt : std::optional(owner->second);
    }

private:
    struct Key {
        std::uint32_t analysisCase;
        ZFXUnicodeString name;

        friend bool operator==(const Key& a, const Key& b) {
            return a.analysisCase == b.analysisCase && a.name.Compare(b.name) != 0;
        }
    };
    struct HashOfKey {
        std::size_t operator()(const Key& key) const {
            return key.name.HashIgnoringCase() + std::size_t{31} * key.analysisCase;
        }
    };

    const LoadedDocument& m_loaded;
    std::unordered_map<Key, std::uint32_t, HashOfKey> m_owners;
};

/// Appends the findings in one column.
void CheckColumn(const DeckSection& section, std::size_t column, const LoadedDocument& loaded,
                 std::vector<Finding>& findings) {
    UsedNames usedNames(loaded);
    for (const DeckRow& row : section.rows) {
        if (!row.names[column])
            continue;
        const std::string& name = *row.names[column];
        const auto add = [&](Verdict verdict) {
            findings.push_back({row.entry, name, std::move(verdict), section.columns[column].title});
        };
        if (Verdict textVerdict = CheckText(name.c_str()); textVerdict.isRefused)
            add(std::move(textVerdict));
        if (name.find_first_of("\n\r,*") != std::string::npos)
            add({true, kDeckCharacter,
                 "The name contains a line break, a comma or an asterisk. These characters have a special meaning "
                 "in the deck."});
        if (const auto other = usedNames.FindOwnerOrAdd(section, row.entry, name))
            add({true, kDuplicateDeckName,
                 "The deck also uses this name for " + OtherPath(loaded, *other, row.entry) + ".", other});
    }
}

} // namespace

std::vector<Finding> CheckDeck(const std::vector<DeckSection>& deck, const LoadedDocument& loaded) {
    std::vector<Finding> findings;
    for (const DeckSection& section : deck)
        for (std::size_t column = 0; column < section.columns.size(); ++column)
            if (section.columns[column].isDeckName)
                CheckColumn(section, column, loaded, findings);
    return findings;
}
