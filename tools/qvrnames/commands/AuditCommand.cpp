#include "commands/AuditReport.h"
#include "commands/Baseline.h"
#include "commands/Commands.h"
#include "commands/ReportFormats.h"
#include "commands/Rules.h"
#include "files/FileErrors.h"
#include "terminal/DisplayWidth.h"
#include "terminal/Progress.h"
#include "terminal/Table.h"

#include <algorithm>
#include <map>
#include <optional>
#include <ostream>

namespace {

/// Returns the name that breaks the rule, and the column of a name in the deck.
std::string NameCell(const ReportedFinding& finding) {
    if (finding.rule == kUnknownType)
        return "";
    return (finding.name.empty() ? "\"\"" : Printable(finding.name)) +
           (finding.deckColumn.empty() ? "" : "  (deck, " + finding.deckColumn + ")");
}

/// Prints the findings of one document.
void PrintFindings(const DocumentReport& report, const AuditRequest& request, bool withHeading, Console console) {
    const std::vector<const ReportedFinding*> findings = FindingsOf(report, request.isStrict);
    if (findings.empty())
        return;
    if (withHeading)
        console.out << Styled(Printable(report.file), Style::Heading, console.screen) << '\n';
    Table table{{"LINE", "FEATURE", "NAME", "RULE", "OTHER FEATURE", "TEXT"}, {}};
    for (const ReportedFinding* finding : findings)
        table.rows.push_back({{PositionOf(*finding)},
                              {Printable(finding->object.path)},
                              {NameCell(*finding)},
                              {finding->rule, Style::Refusal},
                              {finding->other ? Printable(finding->other->path) : ""},
                              {Printable(finding->message)}});
    PrintTable(console.out, table, console.screen);
    console.out << '\n';
}

/// Prints the number of findings by rule.
void PrintRules(const std::vector<DocumentReport>& reports, const AuditRequest& request, Console console) {
    std::map<std::string, std::size_t> byRule;
    for (const DocumentReport& report : reports)
        for (const ReportedFinding* finding : FindingsOf(report, request.isStrict))
            ++byRule[finding->rule];
    if (byRule.empty())
        return;
    Table table{{"RULE", "FINDINGS"}, {}};
    for (const auto& [rule, count] : byRule)
        table.rows.push_back({{rule, Style::Refusal}, {std::to_string(count)}});
    PrintTable(console.out, table, console.screen);
    console.out << '\n';
}

/// Prints the sums over all documents.
void PrintTotals(const std::vector<DocumentReport>& reports, const AuditRequest& request, Console console) {
    std::size_t unusable = 0;
    std::size_t checked = 0;
    std::size_t refusals = 0;
    std::size_t deckFaults = 0;
    std::size_t warnings = 0;
    for (const DocumentReport& report : reports) {
        unusable += report.error.empty() ? 0 : 1;
        checked += report.checked;
        refusals += report.refusals.size();
        deckFaults += report.deckFaults.size();
        warnings += report.warnings.size();
    }
    if (reports.size() > 1)
        console.out << Counted(reports.size(), "document")
                    << (unusable == 0 ? "" : " (" + std::to_string(unusable) + " unusable)") << ", ";
    console.out << Counted(checked, "feature") << " checked, " << Counted(refusals, "refusal");
    if (request.withDeck)
        console.out << ", " << Counted(deckFaults, "finding") << " in the deck";
    if (warnings > 0)
        console.out << ", " << Counted(warnings, "warning");
    console.out << '\n';
}

/// Prints to standard error, for every format: why the document is unusable and, unless strict, the warnings.
void PrintNotices(const DocumentReport& report, const AuditRequest& request, Console console) {
    if (!report.error.empty())
        console.err << "qvrnames: " << Printable(report.error) << '\n';
    if (!request.isStrict)
        for (const ReportedFinding& finding : report.warnings)
            console.err << "qvrnames: " << Printable(DisplayFileName(report.file)) << ":" << PositionOf(finding)
                        << ": warning: " << Printable(TextOf(finding)) << '\n';
}

ExitCode ExitCodeOf(const DocumentReport& report, const AuditRequest& request) {
    if (!report.error.empty())
        return kBadInput;
    const bool isAccepted = !request.newBaseline.empty() || FindingsOf(report, request.isStrict).empty();
    return isAccepted ? kSuccess : kRefused;
}

} // namespace

int AuditDocuments(AuditRequest request, Console console) {
    if (request.format.empty())
        request.format = console.isJson ? "json" : "text";
    if (console.isJson && request.format != "json")
        throw BadInput("--json and --format " + request.format + " exclude each other; omit one of them");
    const bool isText = request.format == "text";
    if (request.isSummary && !isText)
        throw BadInput("--summary and " + (console.isJson ? "--json" : "--format " + request.format) +
                       " exclude each other; omit one of them");
    std::optional<Baseline> baseline;
    if (!request.baseline.empty())
        baseline.emplace(request.baseline);
    if (!request.newBaseline.empty())
        Baseline::CheckReplaceable(request.newBaseline);
    const std::vector<DocumentFile> files = FindDocuments(request.documents, {request.baseline, request.newBaseline});
    std::vector<DocumentReport> reports;
    ExitCode code = kSuccess;
    Progress progress(console.err, console.screen.canShowProgress, files.size());
    for (const DocumentFile& file : files) {
        progress.Show(reports.size());
        reports.push_back(AuditFile(file, request.withDeck));
        progress.Clear();
        if (baseline)
            baseline->RemoveKnown(reports.back());
        code = std::max(code, ExitCodeOf(reports.back(), request));
        PrintNotices(reports.back(), request, console);
        if (isText && !request.isSummary)
            PrintFindings(reports.back(), request, files.size() > 1, console);
    }
    if (!isText) {
        PrintReports(reports, request, console.out);
    } else if (files.size() > 1 || reports.front().error.empty()) {
        if (request.isSummary)
            PrintRules(reports, request, console);
        PrintTotals(reports, request, console);
    }
    if (baseline)
        for (const std::string& entry : baseline->Outdated(reports))
            console.err << "qvrnames: " << Printable(request.baseline + ": no longer found: " + entry) << '\n';
    if (!request.newBaseline.empty()) {
        if (code == kBadInput)
            throw BadInput(request.newBaseline + ": not written, because a document is unusable");
        Baseline::Write(request.newBaseline, reports);
    }
    return code;
}
