// Fixes the names of a document in memory. Each round checks all names with one call, then changes refused ones: their
// texts if a text is illegal, otherwise the numbers of names that clash. The former names are restored at the end.

#include "commands/NameFixes.h"

#include "commands/BaseNames.h"

#include "QVRBaseFeatureAlias.h"
#include "QVRGenI18NUtils.h"
#include "QVRGenZFXUnicodeStringUtils.h"
#include "QVRNameUtil.h"
#include "analysis/ZFXIAlias.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace {

using NameFindings = ZFXListVal<QVRNameFinding>;
using Strings = QVRGenZFXUnicodeStringUtils;

/// The number of changes after which a name is left. One that can be fixed needs a few at most.
constexpr int kMaxChanges = 10;

constexpr const char* kOtherCause = "Another name would not remove the cause.";
constexpr const char* kNoText = "Nothing legal remains of the name, and the type of the feature has no base name.";
constexpr const char* kNoName = "No legal and unique name was found.";

constexpr const char* kLeadingDigit = "LeadingDigitERR_01";
constexpr const char* kAboveLatin1 = "DoubleByteCharErr_01";
/// The rules about the text of a name.
constexpr const char* kTextRules[] = {"NameLengthERR_01", "NameLengthERR_02", kLeadingDigit, "IllegalCharERR_01",
                                      kAboveLatin1};

/// A fix and its state during the rounds.
struct Fix : NameFix {
    bool isTextBroken = false; ///< the former name breaks a rule about its text
    bool isNumbered = false;   ///< a number was appended to the name
    int changes = 0;           ///< the number of changes so far
};

bool BreaksTextRule(const QVRNameFinding& finding) {
    return std::ranges::any_of(kTextRules, [&](const char* id) { return finding.messageId == id; });
}

/// Returns true if two names clash. In a finding about a feature without a name, `other` has no alias.
bool IsClash(const QVRNameFinding& finding) { return ZFXIAlias_var(finding.other) != nullptr; }

/// Returns a name without the fault that a rule reports; empty if nothing remains. It may break another rule.
ZFXUnicodeString Cleaned(const ZFXISpecObject_var& feature, ZFXUnicodeString name, const ZFXUnicodeString& rule) {
    if (rule == kAboveLatin1)
        std::ignore = QVRGenI18NUtils::Instance()->GetGenericEnglishFeatureName(feature, name);
    name = Strings::ReplaceBackslashWithForwardslash(Strings::ReplacePeriodWithDash(name));
    name = QVRBaseFeatureAlias::Trimmed(Strings::RemoveDoubleQuotes(name));
    if (rule == kLeadingDigit) {
        // The digits remain, because often only they distinguish two names. Generic names begin with the late type too.
        const ZFXUnicodeString base = BaseNameOf(feature);
        name = (base.IsNull() != 0 ? feature->GetLateType() + "-" : base) + name;
    }
    return QVRBaseFeatureAlias::Trimmed(Strings::TrucateToLegalLength(name));
}

/// Returns the base name for numbering a name that is in use: "Load-" for "Load-2" and for "Load". Shortens it so that
/// any number can follow.
ZFXUnicodeString NumberingBase(const ZFXUnicodeString& name) {
    auto end = static_cast<std::size_t>(name.GetLengthInChar());
    while (end > 0 && name[end - 1].IsDigit() != 0)
        --end;
    const bool isNumbered = end > 0 && name[end - 1] == '-';
    const ZFXUnicodeString stem = isNumbered ? name.SubString(0, static_cast<int>(end) - 1) : name;
    const ZFXUnicodeString longest = stem + "-2147483647";
    const int excess = longest.GetLengthInChar() - Strings::TrucateToLegalLength(longest).GetLengthInChar();
    return stem.SubString(0, stem.GetLengthInChar() - excess) + "-";
}

/// Finds the new names of a document.
class NameFixer {
public:
    explicit NameFixer(const LoadedDocument& loaded)
        : m_loaded(loaded), m_named(NamedEntries(loaded)), m_entryOf(IndexByObject(loaded)) {}

    std::map<EntryIndex, NameFix> Run() {
        NameFindings findings = CheckStoredNames(m_loaded);
        AddFixes(findings);
        QVRGenI18NUtils::Instance()->ResetAllLists(); // generic names depend on earlier requests for them
        while (CleanTexts(findings) || NumberClashes(findings) || LeaveRest(findings))
            findings = CheckStoredNames(m_loaded);
        QVRGenI18NUtils::Instance()->ResetAllLists();
        return TakeFixes();
    }

private:
    struct NumberRequest {
        EntryIndex entry;
        ZFXUnicodeString base;
    };

    EntryIndex EntryOf(const QVRNameFinding& finding) const { return m_entryOf.at(ZFXIdentityOf(finding.feature)); }
    std::string NameOf(EntryIndex entry) const { return m_loaded.entries[entry].feature.StoredAlias().ConvertToChar(); }
    void SetName(EntryIndex entry, const std::string& name) const {
        MemoryFeature feature = m_loaded.entries[entry].feature;
        feature.Alias(name.c_str());
    }

    /// Adds a fix for each refused name. Leaves names that break a rule other than those about texts and clashes.
    void AddFixes(const NameFindings& findings) {
        for (const QVRNameFinding& finding : findings) {
            const EntryIndex entry = EntryOf(finding);
            Fix& fix = m_fixes.try_emplace(entry, Fix{{VerdictOf(finding, m_entryOf), NameOf(entry)}}).first->second;
            const bool isText = BreaksTextRule(finding);
            fix.isTextBroken |= isText;
            if (!isText && !IsClash(finding))
                fix.obstacle = kOtherCause;
        }
    }

    /// Moves the fixes and the new names to the result. Restores the former names.
    std::map<EntryIndex, NameFix> TakeFixes() {
        std::map<EntryIndex, NameFix> fixes;
        for (auto& [entry, fix] : m_fixes) {
            fix.newName = NameOf(entry);
            SetName(entry, fix.oldName);
            fixes.emplace(entry, std::move(fix));
        }
        return fixes;
    }

    /// Returns true if the name was refused and is not left.
    bool CanChange(EntryIndex entry) const {
        const auto fix = m_fixes.find(entry);
        return fix != m_fixes.end() && fix->second.obstacle == nullptr;
    }

    /// Changes a name in memory. After too many changes, leaves it.
    void Change(EntryIndex entry, const ZFXUnicodeString& name) {
        if (++m_fixes.at(entry).changes > kMaxChanges)
            Leave(entry, kNoName);
        else
            SetName(entry, name.ConvertToChar());
    }
    void Leave(EntryIndex entry, const char* obstacle) {
        Fix& fix = m_fixes.at(entry);
        fix.obstacle = obstacle;
        SetName(entry, fix.oldName);
    }

    /// Removes the faults in the texts of the names. Returns false if there are none.
    bool CleanTexts(const NameFindings& findings) {
        bool hasFaults = false;
        std::vector<NumberRequest> requests;
        for (const QVRNameFinding& finding : findings) {
            const EntryIndex entry = EntryOf(finding);
            if (!CanChange(entry) || !BreaksTextRule(finding))
                continue;
            hasFaults = true;
            const ZFXUnicodeString cleaned = Cleaned(finding.feature, NameOf(entry).c_str(), finding.messageId);
            const ZFXUnicodeString base = BaseNameOf(finding.feature);
            if (cleaned.IsNull() == 0)
                Change(entry, cleaned);
            else if (base.IsNull() == 0)
                requests.push_back({entry, base});
            else
                Leave(entry, kNoText);
        }
        AppendNumbers(requests);
        return hasFaults;
    }

    /// Returns the rank of a name: the lowest of several that clash is kept. Names that must not change come first,
    /// then those whose former text is legal, then the others, each in document order.
    std::pair<int, EntryIndex> RankOf(EntryIndex entry) const {
        return {!CanChange(entry) ? 0 : m_fixes.at(entry).isTextBroken ? 2 : 1, entry};
    }

    /// Returns by entry the first of the names that clash with each other, or the entry itself if its name is unique.
    std::vector<EntryIndex> FirstOfClashes(const NameFindings& findings) const {
        std::vector<EntryIndex> earlier(m_loaded.entries.size()); // in the group; the first refers to itself
        std::iota(earlier.begin(), earlier.end(), EntryIndex{0});
        const auto first = [&](EntryIndex entry) { // shortens the path to the first one
            while (earlier[entry] != entry)
                entry = earlier[entry] = earlier[earlier[entry]];
            return entry;
        };
        for (const QVRNameFinding& finding : findings) {
            const auto other = m_entryOf.find(ZFXIdentityOf(finding.other));
            if (!IsClash(finding) || other == m_entryOf.end())
                continue;
            const auto [low, high] = std::minmax({RankOf(first(EntryOf(finding))), RankOf(first(other->second))});
            earlier[high.second] = low.second;
        }
        for (EntryIndex& entry : earlier)
            entry = first(entry);
        return earlier;
    }

    /// Appends numbers to the names that clash, except the first of each group. Returns false if no name can change.
    bool NumberClashes(const NameFindings& findings) {
        const std::vector<EntryIndex> first = FirstOfClashes(findings);
        std::vector<NumberRequest> requests;
        for (const EntryIndex entry : m_named) {
            if (first[entry] == entry || !CanChange(entry))
                continue;
            const MemoryFeature kept = m_loaded.entries[first[entry]].feature;
            const ZFXUnicodeString name = kept.StoredAlias();
            requests.push_back({entry, name.IsNull() != 0 ? BaseNameOf(kept) : NumberingBase(name)});
        }
        AppendNumbers(requests);
        return !requests.empty();
    }

    /// Leaves the names for which nothing can be changed. Returns false if there are none.
    bool LeaveRest(const NameFindings& findings) {
        bool isLeft = false;
        for (const QVRNameFinding& finding : findings)
            if (const EntryIndex entry = EntryOf(finding); CanChange(entry)) {
                Leave(entry, kNoName);
                isLeft = true;
            }
        return isLeft;
    }

    /// Sets each name to its base and the next number in the case. If the former number clashes with a name outside the
    /// case, as with jobs, sets it to the next number in the document.
    void AppendNumbers(const std::vector<NumberRequest>& requests) {
        struct Group {
            std::vector<EntryIndex> entries;
            ZFXListValZFXBaseUnknown_var features; ///< only those with this base, so that the time is linear
        };
        if (requests.empty())
            return;
        constexpr EntryIndex kWholeDocument = DocumentEntry::kNone;
        std::map<std::pair<EntryIndex, std::string>, Group> groups; // by case or kWholeDocument, and base
        for (const auto& [entry, base] : requests) {
            Fix& fix = m_fixes.at(entry);
            const EntryIndex scope = fix.isNumbered ? kWholeDocument : CaseOf(m_loaded, entry);
            groups[{scope, base.ConvertToChar()}].entries.push_back(entry);
            fix.isNumbered = true;
        }
        for (const EntryIndex entry : m_named) {
            const MemoryFeature feature = m_loaded.entries[entry].feature;
            const std::string base = NumberingBase(feature.StoredAlias()).ConvertToChar();
            for (const EntryIndex scope : {CaseOf(m_loaded, entry), kWholeDocument})
                if (const auto group = groups.find({scope, base}); group != groups.end())
                    group->second.features.Append(feature);
        }
        for (const auto& [key, group] : groups) {
            ZFXUnicodeString base(key.second.c_str());
            ZFXListValZFXUnicodeString names;
            std::ignore = QVRNameUtil::GetNextUniqueNames(base, group.features, static_cast<int>(group.entries.size()),
                                                          names); // S_OK, because there is an entry
            for (std::size_t i = 0; i < group.entries.size(); ++i)
                Change(group.entries[i], names[static_cast<int>(i) + 1]);
        }
    }

    const LoadedDocument& m_loaded;
    const std::vector<EntryIndex> m_named;
    const EntriesByObject m_entryOf;
    std::map<EntryIndex, Fix> m_fixes;
};

} // namespace

std::map<EntryIndex, NameFix> FindFixes(const LoadedDocument& loaded) { return NameFixer(loaded).Run(); }
