#include "ExitCode.h"
#include "commands/Commands.h"
#include "commands/Deck.h"
#include "commands/NameChecks.h"
#include "document/FeaturePaths.h"
#include "terminal/DisplayWidth.h"
#include "terminal/Table.h"

#include "QVRNameUtil.h"

#include <nlohmann/json.hpp>

#include <ostream>
#include <tuple>

namespace {

struct Findings {
    std::size_t checked = 0;       ///< number of features
    std::vector<Finding> refusals; ///< names of features that break a rule
    std::vector<Finding> deck;     ///< names in the deck that break a rule or clash
};

/// Returns the findings about the stored names of the named entries, in document order.
std::vector<Finding> CheckEntries(const LoadedDocument& loaded, const std::vector<std::uint32_t>& named) {
    const EntriesByObject entryOf = IndexByObject(loaded);
    ZFXListValZFXISpecObject_var features;
    for (const std::uint32_t entry : named)
        features.Append(loaded.entries[entry].feature);
    ZFXListVal<QVRNameFinding> found;
    std::ignore = QVRNameUtil::CheckNames(features, found); // always S_OK
    std::vector<Finding> findings;
    for (const QVRNameFinding& finding : found)
        findings.push_back(
            {entryOf.at(ZFXIdentityOf(finding.feature)), finding.name.ConvertToChar(), VerdictOf(finding, entryOf)});
    return findings;
}

std::string Position(TextPosition position) {
    return std::to_string(position.line) + ":" + std::to_string(position.column);
}

void PrintFindings(const LoadedDocument& loaded, const Findings& findings, bool withDeck, Console console) {
    std::ostream& out = console.out;
    Table table{{"LINE", "FEATURE", "NAME", "MESSAGE", "OTHER FEATURE", "TEXT"}, {}};
    PositionFinder positions(loaded.text.Bytes());
    for (const std::vector<Finding>* list : {&findings.refusals, &findings.deck})
        for (const Finding& finding : *list)
            table.rows.push_back({{Position(positions.Find(NameOffset(loaded, finding.entry)))},
                                  {Printable(DisplayPath(loaded, finding.entry))},
                                  {(finding.name.empty() ? "\"\"" : Printable(finding.name)) +
                                   (finding.deckColumn.empty() ? "" : "  (deck, " + finding.deckColumn + ")")},
                                  {finding.verdict.messageId.empty() ? "-" : finding.verdict.messageId, Style::Refusal},
                                  {finding.verdict.other ? Printable(DisplayPath(loaded, *finding.verdict.other)) : ""},
                                  {Printable(finding.verdict.message)}});
    if (!table.rows.empty()) {
        PrintTable(out, table, console.screen);
        out << '\n';
    }
    out << Counted(findings.checked, "feature") << " checked, " << Counted(findings.refusals.size(), "refusal");
    if (withDeck)
        out << ", " << Counted(findings.deck.size(), "finding") << " in the deck";
    out << '\n';
}

nlohmann::ordered_json AsJson(const LoadedDocument& loaded, const std::vector<Finding>& findings) {
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    PositionFinder positions(loaded.text.Bytes());
    for (const Finding& finding : findings) {
        const MemoryFeature feature = loaded.entries[finding.entry].feature;
        const TextPosition position = positions.Find(NameOffset(loaded, finding.entry));
        list.push_back({{"feature", DisplayPath(loaded, finding.entry)},
                        {"pointer", PointerOf(loaded, finding.entry)},
                        {"line", position.line},
                        {"column", position.column},
                        {"type", feature.LateType().ConvertToChar()},
                        {"name", finding.name}});
        AddVerdict(list.back(), loaded, finding.verdict);
        if (!finding.deckColumn.empty())
            list.back()["deck"] = finding.deckColumn;
    }
    return list;
}

} // namespace

int AuditDocument(const AuditRequest& request, Console console) {
    const auto loaded = OpenDocument(request.document);
    const std::vector<std::uint32_t> named = NamedEntries(*loaded);
    Findings findings{named.size(), CheckEntries(*loaded, named), {}};
    if (request.withDeck)
        findings.deck = CheckDeck(BuildDeck(*loaded), *loaded);
    if (console.isJson) {
        nlohmann::ordered_json json{{"featuresChecked", findings.checked},
                                    {"refusals", AsJson(*loaded, findings.refusals)}};
        if (request.withDeck)
            json["deckFaults"] = AsJson(*loaded, findings.deck);
        PrintJson(console.out, json);
    } else {
        PrintFindings(*loaded, findings, request.withDeck, console);
    }
    return findings.refusals.empty() && findings.deck.empty() ? kSuccess : kRefused;
}
