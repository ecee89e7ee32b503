#include "ExitCode.h"
#include "commands/Commands.h"
#include "commands/Deck.h"
#include "commands/NameChecks.h"
#include "document/FeaturePaths.h"
#include "terminal/DisplayWidth.h"
#include "terminal/Table.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <ostream>

namespace {

/// Tells once a second how far an audit has come; a short one says nothing.
class Progress {
public:
    Progress(std::ostream& err, std::size_t total) : m_err(err), m_total(total) {}

    void Update(std::size_t checked) {
        const auto now = Clock::now();
        if (now < m_next)
            return;
        m_next = now + std::chrono::seconds(1);
        m_err << "qvrnames: " << checked << " of " << m_total << " features checked" << std::endl;
    }

private:
    using Clock = std::chrono::steady_clock;
    std::ostream& m_err;
    std::size_t m_total;
    Clock::time_point m_next = Clock::now() + std::chrono::seconds(1);
};

struct Finding {
    std::uint32_t entry;
    std::string name;
    Verdict verdict;
    std::string deckColumn = {}; ///< empty: the feature's own name
};

/// What an audit found: names that are refused, and names in the deck that the rules let through.
struct Findings {
    std::size_t checked = 0;
    std::vector<Finding> refusals;
    std::vector<Finding> deck;
};

std::string AliasOf(const ZFXISpecObject_var& feature) {
    const ZFXIAlias_var alias(feature);
    return alias == nullptr ? "" : alias->GetAlias().ConvertToChar();
}

void PrintFindings(const LoadedDocument& loaded, const Findings& findings, bool withDeck, Console console) {
    std::ostream& out = console.out;
    Table table{{"FEATURE", "NAME", "MESSAGE", "TEXT"}, {}};
    for (const std::vector<Finding>* list : {&findings.refusals, &findings.deck})
        for (const Finding& finding : *list)
            table.rows.push_back({{Printable(DisplayPath(loaded, finding.entry))},
                                  {(finding.name.empty() ? "\"\"" : Printable(finding.name)) +
                                   (finding.deckColumn.empty() ? "" : "  (deck, " + finding.deckColumn + ")")},
                                  {finding.verdict.messageId.empty() ? "-" : finding.verdict.messageId, Style::Refusal},
                                  {Printable(finding.verdict.message)}});
    if (!table.rows.empty()) {
        PrintTable(out, table, console.screen);
        out << '\n';
    }
    out << findings.checked << " features checked, " << findings.refusals.size() << " refusals";
    if (withDeck)
        out << ", " << findings.deck.size() << " faults in the deck";
    out << '\n';
}

nlohmann::ordered_json AsJson(const LoadedDocument& loaded, const std::vector<Finding>& findings) {
    nlohmann::ordered_json list = nlohmann::ordered_json::array();
    for (const Finding& finding : findings) {
        const MemoryFeature feature = loaded.entries[finding.entry].feature;
        list.push_back({{"feature", DisplayPath(loaded, finding.entry)},
                        {"pointer", PointerOf(loaded, finding.entry)},
                        {"type", feature.LateType().ConvertToChar()},
                        {"name", finding.name},
                        {"messageId", finding.verdict.messageId},
                        {"message", finding.verdict.message}});
        if (!finding.deckColumn.empty())
            list.back()["deck"] = finding.deckColumn;
    }
    return list;
}

/// The refusals of the name that a feature has. One fault is told once, whichever of the checks find it.
void CheckFeature(const LoadedDocument& loaded, std::uint32_t entry, std::vector<Finding>& refusals) {
    const ZFXISpecObject_var feature = loaded.entries[entry].feature;
    // An empty name stands for the feature's own, which is the same here.
    const std::string name = AliasOf(feature);
    const Verdict first = CheckFeatureName(feature, name.c_str());
    const Verdict further = CheckSpecialRules(feature);
    if (first.IsRefusal())
        refusals.push_back({entry, name, first});
    if (further.IsRefusal() && further.messageId != first.messageId)
        refusals.push_back({entry, name, further});
}

} // namespace

int AuditDocument(const AuditRequest& request, Console console) {
    const auto loaded = OpenDocument(request.document);
    const std::vector<std::uint32_t> named = NamedEntries(*loaded);
    Progress progress(console.err, named.size());
    Findings findings;
    for (const std::uint32_t entry : named) {
        CheckFeature(*loaded, entry, findings.refusals);
        progress.Update(++findings.checked);
    }
    if (request.withDeck)
        for (DeckFinding& finding : CheckDeck(BuildDeck(*loaded), *loaded))
            findings.deck.push_back(
                {finding.entry, finding.name, std::move(finding.verdict), std::move(finding.column)});
    if (console.isJson) {
        nlohmann::ordered_json said{{"featuresChecked", findings.checked},
                                    {"refusals", AsJson(*loaded, findings.refusals)}};
        if (request.withDeck)
            said["deckFaults"] = AsJson(*loaded, findings.deck);
        PrintJson(console.out, said);
    } else {
        PrintFindings(*loaded, findings, request.withDeck, console);
    }
    return findings.refusals.empty() && findings.deck.empty() ? kSuccess : kRefused;
}
