#include "commands/AuditReport.h"

#include "commands/Commands.h"
#include "commands/DeckCheck.h"
#include "commands/Rules.h"
#include "document/EditDistance.h"
#include "document/FeaturePaths.h"
#include "document/KnownTypes.h"
#include "files/FileErrors.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace {

/// Returns the findings about the names of features, in document order.
std::vector<Finding> CheckFeatures(const LoadedDocument& loaded) {
    const EntriesByObject entryOf = IndexByObject(loaded);
    std::vector<Finding> findings;
    for (const QVRNameFinding& finding : CheckStoredNames(loaded))
        findings.push_back(
            {entryOf.at(ZFXIdentityOf(finding.feature)), finding.name.ConvertToChar(), VerdictOf(finding, entryOf)});
    return findings;
}

std::string LateTypeOf(const LoadedDocument& loaded, EntryIndex entry) {
    return loaded.entries[entry].feature.LateType().ConvertToChar();
}

/// An entry, and the key of it to which a report refers.
using KeyOfEntry = std::pair<EntryIndex, DocumentKey>;

/// The objects of a document as a report shows them. The positions are found in one pass over the file.
class References {
public:
    /// @param keys  all keys to which the report refers
    References(const LoadedDocument& loaded, const std::set<KeyOfEntry>& keys) : m_loaded(loaded) {
        std::vector<std::pair<std::size_t, KeyOfEntry>> offsets;
        offsets.reserve(keys.size());
        for (const KeyOfEntry& key : keys)
            offsets.emplace_back(OffsetOf(loaded, key.first, key.second), key);
        std::sort(offsets.begin(), offsets.end()); // ascending, as PositionFinder needs them for linear time
        PositionFinder finder(loaded.text.Bytes());
        for (const auto& [offset, key] : offsets)
            m_positions[key] = finder.Find(offset);
    }

    ObjectReference operator()(EntryIndex entry, DocumentKey key = DocumentKey::Name) const {
        return {DisplayPath(m_loaded, entry), PointerOf(m_loaded, entry), m_positions.at({entry, key})};
    }

private:
    const LoadedDocument& m_loaded;
    std::map<KeyOfEntry, TextPosition> m_positions;
};

/// The objects of one unknown late type.
struct UnknownType {
    std::string type;
    EntryIndex first;
    std::size_t count;
};

std::vector<UnknownType> UnknownTypes(const LoadedDocument& loaded) {
    const std::unordered_set<std::string> known(KnownLateTypes().begin(), KnownLateTypes().end());
    std::vector<UnknownType> unknown;
    std::unordered_map<std::string, std::size_t> positions;
    for (EntryIndex entry = 1; entry < loaded.entries.size(); ++entry) { // entry 0 is the model
        const std::string type = LateTypeOf(loaded, entry);
        if (known.contains(type))
            continue;
        const auto [position, isNew] = positions.try_emplace(type, unknown.size());
        if (isNew)
            unknown.push_back({type, entry, 0});
        ++unknown[position->second].count;
    }
    return unknown;
}

std::string MessageFor(const UnknownType& unknown) {
    const std::string* similar = MostSimilar(unknown.type, KnownLateTypes());
    return "unknown late type \"" + unknown.type + "\" of " + Counted(unknown.count, "object") +
           (similar == nullptr ? "" : "; did you mean \"" + *similar + "\"?");
}

std::vector<ReportedFinding> Reported(const LoadedDocument& loaded, const std::vector<Finding>& findings,
                                      const References& references) {
    std::vector<ReportedFinding> reported;
    for (const auto& [entry, name, verdict, deckColumn] : findings) {
        reported.push_back(
            {references(entry), verdict.rule, LateTypeOf(loaded, entry), name, verdict.message, deckColumn});
        if (verdict.other)
            reported.back().other = references(*verdict.other);
    }
    return reported;
}

void FillReport(const LoadedDocument& loaded, bool withDeck, DocumentReport& report) {
    const std::vector<Finding> refusals = CheckFeatures(loaded);
    const std::vector<Finding> deck = withDeck ? CheckDeck(BuildDeck(loaded), loaded) : std::vector<Finding>();
    const std::vector<UnknownType> unknownTypes = UnknownTypes(loaded);
    std::set<KeyOfEntry> keys;
    for (const std::vector<Finding>* findings : {&refusals, &deck})
        for (const Finding& finding : *findings) {
            keys.emplace(finding.entry, DocumentKey::Name);
            if (finding.verdict.other)
                keys.emplace(*finding.verdict.other, DocumentKey::Name);
        }
    for (const UnknownType& unknown : unknownTypes)
        keys.emplace(unknown.first, DocumentKey::Type);
    const References references(loaded, keys);
    report.checked = NamedEntries(loaded).size();
    report.refusals = Reported(loaded, refusals, references);
    for (ReportedFinding& finding : Reported(loaded, deck, references))
        (IsWarning(finding) ? report.warnings : report.deckFaults).push_back(std::move(finding));
    for (const UnknownType& unknown : unknownTypes)
        report.warnings.push_back(
            {references(unknown.first, DocumentKey::Type), kUnknownType, unknown.type, "", MessageFor(unknown)});
}

bool IsBefore(const ReportedFinding& a, const ReportedFinding& b) {
    const TextPosition& first = a.object.position;
    const TextPosition& second = b.object.position;
    return std::tie(first.line, first.column) < std::tie(second.line, second.column);
}

/// Returns the text with U+FFFD for each byte that is not UTF-8.
std::string WellFormed(const std::string& text) { return ZFXUnicodeString(text.c_str()).ConvertToChar(); }

} // namespace

DocumentReport AuditFile(const DocumentFile& file, bool withDeck) {
    DocumentReport report{WellFormed(file.path)};
    try {
        if (!file.error.empty())
            ThrowBadInput(file.path, file.error);
        FillReport(*OpenDocument(file.path), withDeck, report);
        for (auto* findings : {&report.refusals, &report.deckFaults, &report.warnings})
            std::stable_sort(findings->begin(), findings->end(), IsBefore);
    } catch (const BadInput& error) {
        report.error = WellFormed(error.what());
    }
    return report;
}

std::string PositionOf(const ReportedFinding& finding) {
    return std::to_string(finding.object.position.line) + ":" + std::to_string(finding.object.position.column);
}

std::vector<const ReportedFinding*> FindingsOf(const DocumentReport& report, bool isStrict) {
    std::vector<const ReportedFinding*> findings;
    for (const auto* list : {&report.refusals, &report.deckFaults, &report.warnings})
        if (list != &report.warnings || isStrict)
            for (const ReportedFinding& finding : *list)
                findings.push_back(&finding);
    std::stable_sort(findings.begin(), findings.end(),
                     [](const ReportedFinding* a, const ReportedFinding* b) { return IsBefore(*a, *b); });
    return findings;
}

bool IsWarning(const ReportedFinding& finding) {
    return finding.rule == kUnknownType || finding.rule == kDeckCharacter;
}

std::string SubjectOf(const ReportedFinding& finding) {
    return "\"" + (finding.rule == kUnknownType ? finding.lateType : finding.name) + "\"" +
           (finding.deckColumn.empty() ? "" : " (deck, " + finding.deckColumn + ")");
}

std::string TextOf(const ReportedFinding& finding) {
    return finding.rule == kUnknownType ? finding.message : SubjectOf(finding) + ": " + finding.message;
}
