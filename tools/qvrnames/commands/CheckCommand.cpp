#include "commands/Commands.h"
#include "files/FileErrors.h"
#include "files/Utf8Text.h"
#include "files/WholeFile.h"
#include "terminal/DisplayWidth.h"
#include "terminal/Table.h"

#include <nlohmann/json.hpp>

#include <sstream>

namespace {

/// Returns the lines of a file, or of standard input, without their ends and without a byte order mark.
std::vector<std::string> LinesOf(const std::string& file) {
    std::string bytes = ReadWholeFile(file);
    if (bytes.starts_with(kByteOrderMark))
        bytes.erase(0, kByteOrderMark.size());
    std::istringstream text(bytes);
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        if (!IsUtf8(line))
            ThrowBadInput(file, "line " + std::to_string(lines.size() + 1) + ": " + kNotUtf8);
        lines.push_back(std::move(line));
    }
    return lines;
}

std::vector<std::string> NamesOf(const CheckRequest& request) {
    std::vector<std::string> names;
    const auto append = [&](const std::vector<std::string>& more) {
        names.insert(names.end(), more.begin(), more.end());
    };
    for (const std::string& argument : request.names)
        append(argument == kStandardStream ? LinesOf(argument) : std::vector{argument});
    if (!request.from.empty())
        append(LinesOf(request.from));
    if (request.names.empty() && request.from.empty())
        throw BadInput("there is no name to check (see --help)");
    return names;
}

constexpr const char* kWhereRulesApply =
    "These rules apply to all features, with two exceptions: names of jobs are only compared with each other, and "
    "names of shell sections (QVRShellSectionEnhLT) may begin with a digit.";

} // namespace

int CheckNames(const CheckRequest& request, Console console) {
    nlohmann::ordered_json names = nlohmann::ordered_json::array();
    Table table;
    bool isRefused = false;
    for (const std::string& argument : NamesOf(request)) {
        const ZFXUnicodeString name = ToUnicode(argument);
        const Verdict verdict = request.areFileNames ? CheckFileName(name) : CheckText(name);
        isRefused |= verdict.isRefused;
        nlohmann::ordered_json json{{"name", argument}, {"legal", !verdict.isRefused}};
        table.rows.push_back({{Printable(argument)}, {verdict.isRefused ? "refused" : "legal"}});
        if (verdict.isRefused) {
            json["rule"] = verdict.rule;
            json["message"] = verdict.message;
            table.rows.back().push_back({verdict.rule, Style::Refusal});
            table.rows.back().push_back({Printable(verdict.message)});
        }
        names.push_back(std::move(json));
    }
    if (console.isJson) {
        PrintJson(console.out, {{"legal", !isRefused}, {"names", names}});
    } else {
        PrintTable(console.out, table, console.screen);
        if (isRefused && !request.areFileNames)
            console.out << '\n' << kWhereRulesApply << '\n';
    }
    return isRefused ? kRefused : kSuccess;
}
