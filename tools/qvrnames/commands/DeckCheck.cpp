#include "commands/Deck.h"

#include "document/FeaturePaths.h"

#include <map>
#include <string_view>
#include <utility>

namespace {

/// The letters of a name as its comparison with others sees them, or nearly so: equal names have one such form.
std::string CaseInsensitiveKey(const std::string& name) {
    ZFXUnicodeString text(name.c_str());
    text.ToUpper();
    text.ToLower();
    return text.ConvertToChar();
}

/// The case that an object lies under; the model for one that lies under none.
std::uint32_t CaseOf(const LoadedDocument& loaded, std::uint32_t entry) {
    while (entry != 0 && ZFXISamAnalysisCase_var(loaded.entries[entry].feature) == nullptr)
        entry = loaded.entries[entry].parent;
    return entry;
}

/// The first object of each name in one column. Features of different cases do not meet: each case has its deck.
class UsedNames {
public:
    explicit UsedNames(const LoadedDocument& loaded) : m_loaded(loaded) {}

    /// Another object that has the name already, as it is told beside `entry`; nothing for a new name.
    std::optional<std::string> AddOrFindOwner(const DeckSection& section, std::uint32_t entry,
                                              const std::string& name) {
        const std::uint32_t analysisCase = std::string_view(section.key) == "features" ? CaseOf(m_loaded, entry) : 0;
        for (const auto& [other, otherName] : m_owners[{analysisCase, CaseInsensitiveKey(name)}])
            if (ZFXUnicodeString(otherName.c_str()).Compare(name.c_str()) != 0) {
                const std::string path = DisplayPath(m_loaded, other);
                return path == DisplayPath(m_loaded, entry) ? PointerOf(m_loaded, other) : path;
            }
        m_owners[{analysisCase, CaseInsensitiveKey(name)}].emplace_back(entry, name);
        return std::nullopt;
    }

private:
    const LoadedDocument& m_loaded;
    std::map<std::pair<std::uint32_t, std::string>, std::vector<std::pair<std::uint32_t, std::string>>> m_owners;
};

/// What is wrong with the names of one column.
void CheckColumn(const DeckSection& section, std::size_t column, const LoadedDocument& loaded,
                 std::vector<DeckFinding>& findings) {
    UsedNames given(loaded);
    for (const DeckRow& row : section.rows) {
        if (!row.names[column])
            continue;
        const std::string& name = *row.names[column];
        const auto found = [&](Verdict verdict) {
            findings.push_back({row.entry, section.columns[column].title, name, std::move(verdict)});
        };
        if (Verdict broken = CheckText(name.c_str()); broken.IsRefusal())
            found(std::move(broken));
        if (const auto other = given.AddOrFindOwner(section, row.entry, name))
            found({E_FAIL, {}, "The deck gives this name to " + *other + " as well."});
    }
}

} // namespace

std::vector<DeckFinding> CheckDeck(const std::vector<DeckSection>& deck, const LoadedDocument& loaded) {
    std::vector<DeckFinding> findings;
    for (const DeckSection& section : deck)
        for (std::size_t column = 0; column < section.columns.size(); ++column)
            if (section.columns[column].isDeckName)
                CheckColumn(section, column, loaded, findings);
    return findings;
}
