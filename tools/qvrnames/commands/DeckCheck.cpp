#include "commands/AuditReport.h"
#include "commands/Deck.h"

#include "document/FeaturePaths.h"

#include <map>
#include <string_view>
#include <utility>

namespace {

/// Returns equal texts for names that differ only in letter case. Names with equal texts must be compared again,
/// because other names may also have equal texts.
std::string CaseInsensitiveKey(const std::string& name) {
    ZFXUnicodeString text(name.c_str());
    text.ToUpper();
    text.ToLower();
    return text.ConvertToChar();
}

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
        for (const auto& [other, otherName] : m_owners[{analysisCase, CaseInsensitiveKey(name)}])
            if (ZFXUnicodeString(otherName.c_str()).Compare(name.c_str()) != 0)
                return other;
        m_owners[{analysisCase, CaseInsensitiveKey(name)}].emplace_back(entry, name);
        return std::nullopt;
    }

private:
    const LoadedDocument& m_loaded;
    std::map<std::pair<std::uint32_t, std::string>, std::vector<std::pair<std::uint32_t, std::string>>> m_owners;
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
        if (Verdict textVerdict = CheckText(name.c_str()); textVerdict.IsRefusal())
            add(std::move(textVerdict));
        if (name.find_first_of("\n\r,*") != std::string::npos)
            add({E_FAIL, kDeckCharacter,
                 "The name contains a line break, a comma or an asterisk. The deck is made of lines, and comma and "
                 "asterisk have a meaning in it."});
        if (const auto other = usedNames.FindOwnerOrAdd(section, row.entry, name))
            add({E_FAIL, {}, "The deck also uses this name for " + OtherPath(loaded, *other, row.entry) + ".", other});
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
