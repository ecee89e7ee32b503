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

/// Prints the progress of an audit once per second, so nothing for a short audit.
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
    std::string deckColumn = {}; ///< the column of a name in the deck; empty for the name of the feature
};

struct Findings {
    std::size_t checked = 0;       ///< number of features
    std::vector<Finding> refusals; ///< names of features that break a rule
    std::vector<Finding> deck;     ///< names in the deck that break a rule or clash
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
    out << Counted(findings.checked, "feature") << " checked, " << Counted(findings.refusals.size(), "refusal");
    if (withDeck)
        out << ", " << Counted(findings.deck.size(), "finding") << " in the deck";
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

/// Appends the refusals of the stored name of a feature. If both checks refuse it with one message id, appends only the
/// first refusal.
void CheckFeature(const LoadedDocument& loaded, std::uint32_t entry, std::vector<Finding>& refusals) {
    const ZFXISpecObject_var feature = loaded.entries[entry].feature;
    const std::string name = AliasOf(feature);
    const Verdict first = CheckFeatureName(feature, name.c_str());
    const Verdict second = CheckSpecialRules(feature);
    if (first.IsRefusal())
        refusals.push_back({entry, name, first});
    if (second.IsRefusal() && second.messageId != first.messageId)
        refusals.push_back({entry, name, second});
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
