#include "Commands.h"
#include "Deck.h"
#include "FeaturePaths.h"
#include "Printing.h"
#include "Run.h"
#include "Verdict.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <ostream>

namespace {

/// Tells once a second how far an audit has come; a short one says nothing.
class Progress {
public:
    Progress(std::ostream& err, std::size_t total) : m_err(err), m_total(total) {}

    void Done(std::size_t checked) {
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

std::string NameOf(const ZFXISpecObject_var& feature) {
    const ZFXIAlias_var alias(feature);
    return alias == nullptr ? "" : alias->GetAlias().ConvertToChar();
}

void PrintFindings(const LoadedDocument& loaded, const std::vector<Finding>& findings, std::size_t checked,
                   std::ostream& out) {
    std::vector<std::vector<std::string>> rows{{"FEATURE", "NAME", "MESSAGE", "TEXT"}};
    for (const Finding& finding : findings)
        rows.push_back(
            {Printable(PathOf(loaded, finding.entry)),
             Printable(finding.name) + (finding.deckColumn.empty() ? "" : "  (deck, " + finding.deckColumn + ")"),
             finding.verdict.messageId.empty() ? "-" : finding.verdict.messageId, Printable(finding.verdict.message)});
    if (!findings.empty()) {
        PrintTable(out, rows);
        out << '\n';
    }
    out << checked << " features checked, " << findings.size() << " refusals\n";
}

void PrintFindingsAsJson(const LoadedDocument& loaded, const std::vector<Finding>& findings, std::size_t checked,
                         std::ostream& out) {
    nlohmann::ordered_json refusals = nlohmann::ordered_json::array();
    for (const Finding& finding : findings) {
        const MemoryFeature feature = loaded.entries[finding.entry].feature;
        refusals.push_back({{"feature", PathOf(loaded, finding.entry)},
                            {"pointer", PointerOf(loaded, finding.entry)},
                            {"type", feature.LateType().ConvertToChar()},
                            {"name", finding.name},
                            {"messageId", finding.verdict.messageId},
                            {"message", finding.verdict.message}});
        if (!finding.deckColumn.empty())
            refusals.back()["deck"] = finding.deckColumn;
    }
    PrintJson(out, {{"featuresChecked", checked}, {"refusals", refusals}});
}

} // namespace

int AuditDocument(const AuditRequest& request, Console console) {
    const auto loaded = OpenDocument(request.document);
    std::size_t named = 0;
    for (const DocumentEntry& entry : loaded->entries)
        named += entry.isNamed ? 1 : 0;
    Progress progress(console.err, named);
    std::vector<Finding> findings;
    std::size_t checked = 0;
    for (std::uint32_t entry = 0; entry < loaded->entries.size(); ++entry) {
        if (!loaded->entries[entry].isNamed)
            continue;
        const ZFXISpecObject_var feature = loaded->entries[entry].feature;
        // An empty name stands for the feature's own, which is the same here.
        const std::string name = NameOf(feature);
        for (Verdict verdict : {JudgeName(feature, name.c_str()), JudgeFurther(feature)})
            if (verdict.IsRefusal())
                findings.push_back({entry, name, std::move(verdict)});
        progress.Done(++checked);
    }
    if (request.withDeck)
        for (DeckFinding& finding : FindingsOf(DeckOf(*loaded), *loaded))
            findings.push_back({finding.entry, finding.name, std::move(finding.verdict), std::move(finding.column)});
    (console.isJson ? PrintFindingsAsJson : PrintFindings)(*loaded, findings, checked, console.out);
    return findings.empty() ? kFine : kRefused;
}
