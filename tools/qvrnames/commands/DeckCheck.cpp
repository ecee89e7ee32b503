#include "commands/DeckCheck.h"

#include "commands/Rules.h"
#include "document/FeaturePaths.h"

#include <unordered_map>
#include <utility>

namespace {

/// Returns the path of `other`, or its JSON pointer if the path is also that of `entry`.
std::string OtherPath(const LoadedDocument& loaded, EntryIndex other, EntryIndex entry) {
    const std::string path = DisplayPath(loaded, other);
    return path == DisplayPath(loaded, entry) ? PointerOf(loaded, other) : path;
}

/// A name in a column, and the case with the deck or 0. Two names that clash are equal.
struct DeckName {
    EntryIndex analysisCase;
    ZFXUnicodeString name;

    friend bool operator==(const DeckName& a, const DeckName& b) {
        return a.analysisCase == b.analysisCase && a.name.Compare(b.name) != 0;
    }
};

struct HashOfDeckName {
    std::size_t operator()(const DeckName& name) const {
        return name.name.HashIgnoringCase() + std::size_t{31} * name.analysisCase;
    }
};

/// Appends the findings in one column.
void CheckColumn(const DeckSection& section, std::size_t column, const LoadedDocument& loaded,
                 std::vector<Finding>& findings) {
    std::unordered_map<DeckName, EntryIndex, HashOfDeckName> owners; // the first object with each name
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
        const EntryIndex analysisCase = section.isPerCase ? CaseOf(loaded, row.entry) : 0;
        const auto [owner, isNew] = owners.try_emplace({analysisCase, name.c_str()}, row.entry);
        if (!isNew)
            add({true, kDuplicateDeckName,
                 "The deck also uses this name for " + OtherPath(loaded, owner->second, row.entry) + ".",
                 owner->second});
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
