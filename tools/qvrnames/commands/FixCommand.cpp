#include "ExitCode.h"
#include "commands/Commands.h"
#include "commands/NameFixes.h"
#include "document/FeaturePaths.h"
#include "files/FileErrors.h"
#include "files/WholeFile.h"
#include "terminal/DisplayWidth.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace {

/// A name that changes or is left.
struct Line {
    EntryIndex entry;
    NameFix fix;
    TextPosition position = {};
};

/// Returns the names that change or are left, in the order of the file.
std::vector<Line> FindLines(const LoadedDocument& loaded) {
    std::map<std::size_t, Line> byOffset;
    for (auto& [entry, fix] : FindFixes(loaded))
        if (fix.obstacle != nullptr || fix.newName != fix.oldName)
            byOffset.emplace(OffsetOf(loaded, entry, DocumentKey::Name), Line{entry, fix});
    std::vector<Line> lines;
    PositionFinder positions(loaded.text.Bytes());
    for (auto& [offset, line] : byOffset) {
        line.position = positions.Find(offset);
        lines.push_back(std::move(line));
    }
    return lines;
}

std::string Shown(const std::string& name) { return name.empty() ? "\"\"" : Printable(name); }

void Print(const LoadedDocument& loaded, const std::vector<Line>& lines, Console console) {
    const auto print = [&](const std::string& text, Style style) {
        console.out << Styled(text, style, console.screen) << '\n';
    };
    for (const auto& [entry, fix, position] : lines) {
        console.out << position.line << ':' << position.column << ' ' << Printable(DisplayPath(loaded, entry)) << "  "
                    << fix.verdict.rule << ": " << ReasonOf(loaded, fix.verdict) << '\n';
        print((fix.obstacle == nullptr ? "- " : "! ") + Shown(fix.oldName), Style::Refusal);
        if (fix.obstacle == nullptr)
            print("+ " + Shown(fix.newName), Style::Proposal);
        else
            print(std::string("  left: ") + fix.obstacle, Style::Plain);
    }
    if (!lines.empty())
        console.out << '\n';
}

void PrintAsJson(const LoadedDocument& loaded, const std::vector<Line>& lines, bool isWritten, Console console) {
    using Json = nlohmann::ordered_json;
    Json json{{"featuresChecked", NamedEntries(loaded).size()},
              {"written", isWritten},
              {"fixed", Json::array()},
              {"left", Json::array()}};
    for (const auto& [entry, fix, position] : lines) {
        Json& list = json[fix.obstacle == nullptr ? "fixed" : "left"];
        list.push_back({{"feature", DisplayPath(loaded, entry)},
                        {"pointer", PointerOf(loaded, entry)},
                        {"line", position.line},
                        {"column", position.column},
                        {"type", loaded.entries[entry].feature.LateType().ConvertToChar()},
                        {"former", fix.oldName},
                        {"name", fix.newName}});
        AddVerdict(list.back(), loaded, fix.verdict);
        if (fix.obstacle != nullptr)
            list.back()["reasonLeft"] = fix.obstacle;
    }
    PrintJson(console.out, json);
}

} // namespace

int FixNames(const FixRequest& request, Console console) {
    const bool isPiped = request.document == kStandardStream;
    // From reading to writing, so that no change by another process is lost.
    const std::shared_ptr<void> lock = request.write && !isPiped ? LockDocument(request.document, console) : nullptr;
    const auto loaded = OpenDocument(request.document);
    const std::vector<Line> lines = FindLines(*loaded);
    std::vector<EntryName> names;
    for (const Line& line : lines)
        if (line.fix.obstacle == nullptr)
            names.push_back({line.entry, line.fix.newName});
    const std::size_t left = lines.size() - names.size();
    // The file is written before the result is printed, so that changes that cannot be written are not reported.
    if (request.write && (isPiped || !names.empty()))
        WriteDocument(TextWithNames(*loaded, names), request.document, request.document, console);
    // Standard output contains either the document or the messages.
    const Console messages = isPiped && request.write ? console.OnStandardError() : console;
    if (console.isJson) {
        PrintAsJson(*loaded, lines, request.write, messages);
    } else {
        Print(*loaded, lines, messages);
        messages.out << Counted(NamedEntries(*loaded).size(), "feature") << " checked, "
                     << Counted(names.size(), "name") << (request.write ? " fixed, " : " to fix, ") << left
                     << " left\n";
    }
    return left == 0 && (request.write || names.empty()) ? kSuccess : kRefused;
}
