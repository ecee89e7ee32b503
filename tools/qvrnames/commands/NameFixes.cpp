// Fixes the names of a document in memory. Each round checks all names with one call, then changes refused ones: their
// texts if a text is illegal, otherwise the numbers of names that clash. The former names are restored at the end.

#include "commands/NameFixes.h"

#include "commands/BaseNames.h"

#include "QVRBaseFeatureAlias.h"
#include "QVRGenI18NUtils.h"
#include "QVRGenZFXUnicodeStringUtils.h"
#include "QVRNameUtil.h"
#include "analysis/ZFXIAlias.h"
#include "object-model/ZFXImplements.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>
#include <utility>

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
    bool isNumbered = false; ///< a number was appended to the name
    int changes = 0;         ///< the number of changes so far
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

/// Hashes and compares texts without regard to letter case.
struct IgnoringCase {
    std::size_t operator()(const ZFXUnicodeString& text) const { return text.HashIgnoringCase(); }
    bool operator()(const ZFXUnicodeString& a, const ZFXUnicodeString& b) const { return a.Compare(b) != 0; }
};

/// An element of a scope that consists of its name only.
class NameInScope final : public ZFXImplements<ZFXObject, ZFXIAlias> {
public:
    explicit NameInScope(ZFXUnicodeString name) : ZFXImplements(nullptr), m_name(std::move(name)) {}
    void SetAlias(const ZFXUnicodeString& alias) override { m_name = alias; }
    ZFXUnicodeString GetAlias() override { return m_name; }

private:
    ZFXUnicodeString m_name;
};

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
    using Rank = std::tuple<int, std::size_t, EntryIndex>; ///< with the offset in the file
    using Bases = std::map<EntryIndex, ZFXUnicodeString>;  ///< by entry, of the names that get a number
    /// Names that are numbered together.
    struct NumberGroup {
        std::vector<EntryIndex> entries;
        ZFXListValZFXBaseUnknown_var inUse; ///< only names with the base of the group, so that the time is linear
    };
    /// The groups by base, then by case or kWholeDocument.
    using NumberGroups =
        std::unordered_map<ZFXUnicodeString, std::map<EntryIndex, NumberGroup>, IgnoringCase, IgnoringCase>;
    static constexpr EntryIndex kWholeDocument = DocumentEntry::kNone;

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
            if (!BreaksTextRule(finding) && !IsClash(finding))
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
        Bases bases;
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
                bases.emplace(entry, base);
            else
                Leave(entry, kNoText);
        }
        AppendNumbers(bases);
        return hasFaults;
    }

    /// Returns the rank of a name. Of two names that clash, the one with the lower rank remains. Names that must not
    /// change come first, then those that have not changed, so that no new name displaces them, then the others, each
    /// in the order of the file. A name whose text was illegal has changed before the clashes are examined.
    Rank RankOf(EntryIndex entry) const {
        return {!CanChange(entry) ? 0 : m_fixes.at(entry).changes == 0 ? 1 : 2, m_loaded.entries[entry].offset, entry};
    }

    /// Returns the names that must change because they clash with a name that remains, each with that name.
    std::map<EntryIndex, EntryIndex> DecideClashes(const NameFindings& findings) const {
        std::vector<std::pair<Rank, Rank>> clashes; // the higher rank first
        for (const QVRNameFinding& finding : findings) {
            const auto other = m_entryOf.find(ZFXIdentityOf(finding.other));
            if (!IsClash(finding) || other == m_entryOf.end())
                continue;
            const auto [low, high] = std::minmax({RankOf(EntryOf(finding)), RankOf(other->second)});
            clashes.emplace_back(high, low);
        }
        std::ranges::sort(clashes); // every name is decided after the names of lower ranks
        std::map<EntryIndex, EntryIndex> remaining;
        for (const auto& [high, low] : clashes)
            if (const auto entry = std::get<EntryIndex>(high); CanChange(entry))
                if (const auto kept = std::get<EntryIndex>(low); !remaining.contains(kept))
                    remaining.emplace(entry, kept);
        return remaining;
    }

    /// Gives the names that must change because of a clash the base of the name that remains. Returns false if there
    /// are none.
    bool NumberClashes(const NameFindings& findings) {
        Bases bases;
        for (const auto& [entry, remaining] : DecideClashes(findings)) {
            const MemoryFeature kept = m_loaded.entries[remaining].feature;
            const ZFXUnicodeString name = kept.StoredAlias();
            bases.emplace(entry, name.IsNull() != 0 ? BaseNameOf(kept) : NumberingBase(name));
        }
        AppendNumbers(bases);
        return !bases.empty();
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
    /// case, as with jobs, sets it to the next number in the document. Bases that differ only in letter case are
    /// numbered together. The numbers increase in the order of the file.
    void AppendNumbers(const Bases& bases) {
        NumberGroups groups;
        for (const auto& [entry, base] : bases) {
            Fix& fix = m_fixes.at(entry);
            groups[base][fix.isNumbered ? kWholeDocument : CaseOf(m_loaded, entry)].entries.push_back(entry);
            fix.isNumbered = true;
        }
        if (!groups.empty())
            AddNamesInUse(groups);
        for (auto& [base, groupsOfBase] : groups)
            for (auto& [scope, group] : groupsOfBase) {
                std::ranges::sort(group.entries, {}, [&](EntryIndex entry) { return m_loaded.entries[entry].offset; });
                ZFXUnicodeString spelling = base;
                ZFXListValZFXUnicodeString names;
                std::ignore = QVRNameUtil::GetNextUniqueNames(
                    spelling, group.inUse, static_cast<int>(group.entries.size()), names); // S_OK: there is an entry
                auto name = names.begin();
                for (const EntryIndex entry : group.entries)
                    Change(entry, bases.at(entry) + (name++)->SubString(base.GetLengthInChar(), -1));
            }
    }

    /// Adds every name to the groups with its base.
    void AddNamesInUse(NumberGroups& groups) const {
        for (const EntryIndex entry : m_named) {
            const ZFXUnicodeString name = m_loaded.entries[entry].feature.StoredAlias();
            const auto found = groups.find(NumberingBase(name));
            if (found == groups.end())
                continue;
            auto& [base, groupsOfBase] = *found;
            // The library compares bases exactly, so the name gets the spelling of the key.
            const ZFXUnicodeString spelled = base + name.SubString(base.GetLengthInChar(), -1);
            if (spelled.Compare(name) == 0)
                continue; // the base is not in the name, because it was shortened or the name has no number
            for (const EntryIndex scope : {CaseOf(m_loaded, entry), kWholeDocument})
                if (const auto group = groupsOfBase.find(scope); group != groupsOfBase.end())
                    group->second.inUse.Append(ZFXIAlias_var::Attach(new NameInScope(spelled)));
        }
    }

    const LoadedDocument& m_loaded;
    const std::vector<EntryIndex> m_named;
    const EntriesByObject m_entryOf;
    std::map<EntryIndex, Fix> m_fixes;
};

} // namespace

std::map<EntryIndex, NameFix> FindFixes(const LoadedDocument& loaded) { return NameFixer(loaded).Run(); }
