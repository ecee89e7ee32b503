// The formats of audit reports for other programs: JSON, SARIF 2.1.0 and JUnit XML.

#include "commands/ReportFormats.h"

#include "QVRNameUtilityVersion.h"
#include "commands/Rules.h"
#include "files/WholeFile.h"
#include "terminal/DisplayWidth.h"

#include "text/Utf8Path.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cassert>
#include <cstdio>
#include <filesystem>
#include <map>
#include <ostream>
#include <unordered_map>
#include <unordered_set>

namespace {

using Json = nlohmann::ordered_json;
using Reports = std::vector<DocumentReport>;

// ---- JSON ----

Json AsJson(const ObjectReference& object) {
    return {{"feature", object.path},
            {"pointer", object.pointer},
            {"line", object.position.line},
            {"column", object.position.column}};
}

Json AsJson(const std::vector<ReportedFinding>& findings) {
    Json list = Json::array();
    for (const ReportedFinding& finding : findings) {
        Json json = AsJson(finding.object);
        json["type"] = finding.lateType;
        if (finding.rule != kUnknownType)
            json["name"] = finding.name;
        json["rule"] = finding.rule;
        json["message"] = finding.message;
        if (finding.other)
            json["other"] = AsJson(*finding.other);
        if (!finding.deckColumn.empty())
            json["deck"] = finding.deckColumn;
        list.push_back(std::move(json));
    }
    return list;
}

void PrintAsJson(const Reports& reports, const AuditRequest& request, std::ostream& out) {
    Json documents = Json::array();
    for (const DocumentReport& report : reports) {
        Json json{{"file", report.file}};
        if (!report.error.empty()) {
            json["error"] = report.error;
        } else {
            json["featuresChecked"] = report.checked;
            json["refusals"] = AsJson(report.refusals);
            if (request.withDeck)
                json["deckFaults"] = AsJson(report.deckFaults);
            json["warnings"] = AsJson(report.warnings);
        }
        documents.push_back(std::move(json));
    }
    PrintJson(out, {{"version", 1}, {"documents", std::move(documents)}});
}

// ---- SARIF ----

/// Returns the path of a file as a URI, or as a relative reference if the path is relative.
std::string UriOf(const std::string& file) {
    if (file == kStandardStream)
        return "stdin";
    constexpr std::string_view kUnchanged = "-._~/ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    const bool isAbsolute = Utf8::ToPath(file).is_absolute();
    std::string uri = !isAbsolute ? "" : file.front() == '/' ? "file://" : "file:///"; // a drive has no leading slash
    for (const char byte : file) {
        if (byte == '\\' && std::filesystem::path::preferred_separator == '\\') {
            uri += '/';
        } else if (kUnchanged.find(byte) != std::string_view::npos || (byte == ':' && isAbsolute)) {
            uri += byte;
        } else {
            char escape[4];
            std::snprintf(escape, sizeof escape, "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
            uri += escape;
        }
    }
    return uri;
}

Json LocationOf(const std::string& uri, const ObjectReference& object) {
    return {{"physicalLocation",
             {{"artifactLocation", {{"uri", uri}}},
              {"region", {{"startLine", object.position.line}, {"startColumn", object.position.column}}}}},
            {"logicalLocations", Json::array({{{"fullyQualifiedName", object.path}}})}};
}

Json ResultOf(const std::string& uri, const ReportedFinding& finding, const char* level) {
    Json result{{"ruleId", finding.rule},
                {"level", level},
                {"message", {{"text", TextOf(finding)}}},
                {"locations", Json::array({LocationOf(uri, finding.object)})}};
    if (finding.other) {
        result["relatedLocations"] = Json::array({LocationOf(uri, *finding.other)});
        result["relatedLocations"][0]["message"] = {{"text", "the other feature: " + finding.other->path}};
    }
    return result;
}

Json RuleOf(const std::string& id) {
    const std::vector<Rule> rules = AllRules();
    const auto rule = std::find_if(rules.begin(), rules.end(), [&](const Rule& known) { return known.id == id; });
    assert(rule != rules.end());
    return {{"id", id}, {"shortDescription", {{"text", rule->cause}}}, {"help", {{"text", rule->fix}}}};
}

void PrintAsSarif(const Reports& reports, const AuditRequest& request, std::ostream& out) {
    Json results = Json::array();
    Json failures = Json::array();
    std::map<std::string, std::size_t> ruleIndexes;
    Json rules = Json::array();
    for (const DocumentReport& report : reports) {
        const std::string uri = UriOf(report.file);
        if (!report.error.empty())
            failures.push_back(
                {{"level", "error"},
                 {"message", {{"text", report.error}}},
                 {"locations", Json::array({{{"physicalLocation", {{"artifactLocation", {{"uri", uri}}}}}}})}});
        for (const ReportedFinding* finding : FindingsOf(report, true)) {
            const bool isWarning = IsWarning(*finding) && !request.isStrict;
            results.push_back(ResultOf(uri, *finding, isWarning ? "warning" : "error"));
            const auto [index, isNew] = ruleIndexes.try_emplace(finding->rule, rules.size());
            if (isNew)
                rules.push_back(RuleOf(finding->rule));
            results.back()["ruleIndex"] = index->second;
        }
    }
    const Json driver{{"name", "qvrnames"}, {"version", QVR_NAME_UTILITY_VERSION}, {"rules", std::move(rules)}};
    const bool isSuccessful = failures.empty();
    const Json invocation{{"executionSuccessful", isSuccessful}, {"toolExecutionNotifications", std::move(failures)}};
    const Json run{{"tool", {{"driver", driver}}},
                   {"columnKind", "unicodeCodePoints"},
                   {"invocations", Json::array({invocation})},
                   {"results", std::move(results)}};
    PrintJson(out, {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                    {"version", "2.1.0"},
                    {"runs", Json::array({run})}});
}

// ---- JUnit ----

/// Returns a text for XML. Characters that XML cannot contain are escaped as on a terminal.
std::string Xml(const std::string& text) {
    std::string escaped;
    for (const char byte : Printable(text))
        switch (byte) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += byte;
        }
    return escaped;
}

std::string Attribute(const char* name, const std::string& value) {
    return " " + std::string(name) + "=\"" + Xml(value) + "\"";
}

using FindingList = std::vector<const ReportedFinding*>;

/// Returns the findings that make an audit fail, grouped by object, in the order of the first finding of each.
std::vector<FindingList> FindingsByObject(const DocumentReport& report, bool isStrict) {
    std::vector<FindingList> groups;
    std::unordered_map<std::string, std::size_t> indexes;
    for (const ReportedFinding* finding : FindingsOf(report, isStrict)) {
        const auto [index, isNew] = indexes.try_emplace(finding->object.pointer, groups.size());
        if (isNew)
            groups.emplace_back();
        groups[index->second].push_back(finding);
    }
    return groups;
}

/// Returns a line with the position, the rule or "warning", and the text of a finding.
std::string LineOf(const DocumentReport& report, const ReportedFinding& finding, const std::string& label) {
    return Xml(report.file + ":" + PositionOf(finding) + ": " + label + ": " + TextOf(finding) +
               (finding.other ? " The other feature is " + finding.other->path + "." : "")) +
           "\n";
}

/// Prints the beginning of a test case, up to its attributes.
void BeginCase(const std::string& name, const DocumentReport& report, std::ostream& out) {
    out << "    <testcase" << Attribute("name", name) << Attribute("classname", report.file);
}

/// Prints the test case of an object with findings.
void PrintFailedCase(const std::string& name, const FindingList& findings, const DocumentReport& report,
                     std::ostream& out) {
    const ReportedFinding& first = *findings.front();
    BeginCase(name, report, out);
    out << "><failure" << Attribute("type", first.rule) << Attribute("message", first.rule + ": " + SubjectOf(first))
        << ">";
    for (const ReportedFinding* finding : findings)
        out << LineOf(report, *finding, finding->rule);
    out << "</failure></testcase>\n";
}

/// Prints one test case for each object with findings, or one for a document without findings. If the name of a test
/// case occurs again, the JSON pointer is added, because servers identify a test case by its name.
void PrintSuite(const DocumentReport& report, const AuditRequest& request, std::ostream& out) {
    const std::vector<FindingList> groups = FindingsByObject(report, request.isStrict);
    const bool isUnusable = !report.error.empty();
    out << "  <testsuite" << Attribute("name", report.file)
        << Attribute("tests", std::to_string(std::max<std::size_t>(groups.size(), 1)))
        << Attribute("failures", std::to_string(groups.size())) << Attribute("errors", isUnusable ? "1" : "0") << ">\n";
    std::unordered_set<std::string> names;
    for (const FindingList& findings : groups) {
        const ObjectReference& object = findings.front()->object;
        const bool isNew = names.insert(object.path).second;
        PrintFailedCase(isNew ? object.path : object.path + " (" + object.pointer + ")", findings, report, out);
    }
    if (groups.empty()) {
        BeginCase(report.file, report, out);
        out << (isUnusable ? "><error" + Attribute("message", report.error) + "/></testcase>\n" : "/>\n");
    }
    if (!request.isStrict && !report.warnings.empty()) {
        out << "    <system-err>";
        for (const ReportedFinding& finding : report.warnings)
            out << LineOf(report, finding, "warning");
        out << "</system-err>\n";
    }
    out << "  </testsuite>\n";
}

void PrintAsJUnit(const Reports& reports, const AuditRequest& request, std::ostream& out) {
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites name=\"qvrnames audit\">\n";
    for (const DocumentReport& report : reports)
        PrintSuite(report, request, out);
    out << "</testsuites>\n";
}

} // namespace

void PrintReports(const std::vector<DocumentReport>& reports, const AuditRequest& request, std::ostream& out) {
    if (request.format == "json")
        PrintAsJson(reports, request, out);
    else if (request.format == "sarif")
        PrintAsSarif(reports, request, out);
    else
        PrintAsJUnit(reports, request, out);
}
