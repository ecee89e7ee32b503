#include "commands/Baseline.h"

#include "commands/Rules.h"
#include "files/FileErrors.h"
#include "files/WholeFile.h"

#include "text/Utf8Path.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <tuple>

namespace {

using Json = nlohmann::json;

constexpr int kVersion = 1;

Json EntryOf(const DocumentReport& report, const ReportedFinding& finding) {
    Json entry{{"file", report.file}, {"feature", finding.object.path}, {"rule", finding.rule}};
    entry["name"] = finding.rule == kUnknownType ? finding.lateType : finding.name;
    if (!finding.deckColumn.empty())
        entry["deck"] = finding.deckColumn;
    return entry;
}

bool IsEntry(const Json& entry) {
    if (!entry.is_object())
        return false;
    for (const char* key : {"file", "feature", "rule", "name"})
        if (!entry.contains(key) || !entry[key].is_string())
            return false;
    return true;
}

/// Returns the entries of a baseline. Throws BadInput with the message if the file is not a baseline.
Json EntriesIn(const std::string& file, const char* message) {
    const Json baseline = Json::parse(ReadWholeFile(file), nullptr, false);
    const bool hasFindings = baseline.is_object() && baseline.value("version", Json()) == kVersion &&
                             baseline.value("findings", Json()).is_array();
    if (!hasFindings || !std::all_of(baseline["findings"].begin(), baseline["findings"].end(), IsEntry))
        ThrowBadInput(file, message);
    return baseline["findings"];
}

bool IsMissing(const std::string& file) {
    std::error_code ignored;
    return file != kStandardStream &&
           std::filesystem::status(Utf8::ToPath(file), ignored).type() == std::filesystem::file_type::not_found;
}

} // namespace

Baseline::Baseline(const std::string& file) {
    for (const Json& entry : EntriesIn(file, "not a baseline; --write-baseline writes one"))
        ++m_unused[entry];
}

void Baseline::CheckReplaceable(const std::string& file) {
    if (file == kStandardStream)
        throw BadInput("--write-baseline: a baseline is written to a file, not to standard output");
    std::error_code error;
    if (std::filesystem::is_regular_file(Utf8::ToPath(file), error))
        std::ignore = EntriesIn(file, "not replaced, because it is not a baseline; specify a new file");
}

void Baseline::Write(const std::string& file, const std::vector<DocumentReport>& reports) {
    Json findings = Json::array();
    for (const DocumentReport& report : reports)
        for (const ReportedFinding* finding : FindingsOf(report, true))
            findings.push_back(EntryOf(report, *finding));
    const Json baseline{{"version", kVersion}, {"findings", std::move(findings)}};
    ReplaceWholeFile(file, baseline.dump(2) + "\n", kStandardStream);
}

void Baseline::RemoveKnown(DocumentReport& report) {
    for (auto* findings : {&report.refusals, &report.deckFaults, &report.warnings})
        std::erase_if(*findings, [&](const ReportedFinding& finding) {
            const auto entry = m_unused.find(EntryOf(report, finding));
            if (entry == m_unused.end() || entry->second == 0)
                return false;
            --entry->second;
            return true;
        });
}

std::vector<std::string> Baseline::Outdated(const std::vector<DocumentReport>& reports) const {
    std::set<std::string> audited;
    for (const DocumentReport& report : reports)
        if (report.error.empty())
            audited.insert(report.file);
    std::vector<std::string> outdated;
    for (const auto& [entry, count] : m_unused)
        if (const auto file = entry["file"].get<std::string>();
            count > 0 && (audited.contains(file) || IsMissing(file)))
            outdated.push_back(file + ": " + entry["feature"].get<std::string>() + ": " +
                               entry["rule"].get<std::string>());
    return outdated;
}
