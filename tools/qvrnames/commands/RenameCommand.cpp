#include "commands/Commands.h"
#include "commands/NameChecks.h"
#include "commands/Rules.h"
#include "document/FeaturePaths.h"
#include "files/RealPath.h"
#include "files/WholeFile.h"
#include "terminal/DisplayWidth.h"

#include "LateTypes.h"
#include "QVRBaseFeatureAlias.h"

#include <nlohmann/json.hpp>

#include <memory>
#include <ostream>

namespace {

struct Outcome {
    std::string oldName;
    std::string newName; ///< the stored name: `oldName` if the renaming was refused
    bool isRefused = false;
    Verdict verdict; ///< on the requested name
};

/// Renames the feature through its interface ZFXIAlias, as a workbench does, if the name passes the check. With
/// `force`, also renames a feature of a type that accepts any name.
Outcome ApplyName(const LoadedDocument& loaded, EntryIndex entry, const RenameRequest& request) {
    const ZFXISpecObject_var feature = loaded.entries[entry].feature;
    const ZFXUnicodeString name = ToUnicode(request.name);
    const ZFXIAlias_var alias(feature);
    Outcome outcome;
    if (alias == nullptr) {
        outcome.isRefused = true;
        outcome.verdict = {true, kRequestFailed,
                           "The feature cannot have a name: it does not offer the interface ZFXIAlias."};
        return outcome;
    }
    outcome.oldName = outcome.newName = alias->GetAlias().ConvertToChar();
    const bool isGuarded = LateTypes::IsGuarded(feature->GetLateType());
    outcome.verdict = CheckNewName(loaded, entry, name);
    outcome.isRefused = outcome.verdict.isRefused && (!request.force || isGuarded);
    if (!outcome.isRefused) {
        // A guarded alias trims the name itself. Trimming it twice would remove more: "__ a __", " a ", "a".
        alias->SetAlias(isGuarded ? name : QVRBaseFeatureAlias::Trimmed(name));
        outcome.newName = alias->GetAlias().ConvertToChar();
    }
    return outcome;
}

std::string Quoted(const std::string& name) { return "\"" + Printable(name) + "\""; }

void Print(const LoadedDocument& loaded, const std::string& feature, const RenameRequest& request,
           const Outcome& outcome, Console console) {
    std::ostream& out = console.out;
    out << Printable(feature) << ": ";
    const std::string rule = Styled(outcome.verdict.rule, Style::Refusal, console.screen);
    if (outcome.isRefused) {
        out << "refused (" << rule << "); the name is still " << Quoted(outcome.oldName) << "\n  "
            << ReasonOf(loaded, outcome.verdict) << '\n';
        return;
    }
    out << Quoted(outcome.oldName) << " -> " << Quoted(outcome.newName);
    out << (outcome.newName != request.name ? " (spaces, then underscores, removed at its ends)\n" : "\n");
    if (outcome.verdict.isRefused)
        out << "  stored because of --force; an audit refuses it (" << rule
            << "): " << ReasonOf(loaded, outcome.verdict) << '\n';
}

void PrintAsJson(const LoadedDocument& loaded, const std::string& feature, const RenameRequest& request,
                 const Outcome& outcome, Console console) {
    nlohmann::ordered_json json{{"feature", feature},        {"renamed", !outcome.isRefused},
                                {"former", outcome.oldName}, {"requested", request.name},
                                {"name", outcome.newName},   {"legal", !outcome.verdict.isRefused}};
    AddVerdict(json, loaded, outcome.verdict);
    PrintJson(console.out, json);
}

} // namespace

int RenameFeature(const RenameRequest& request, Console console) {
    const std::string& target = request.output.empty() ? request.document : request.output;
    // The files are not compared, because another process can replace a file between two look-ups.
    const bool isInPlace = request.document != kStandardStream && RealPath(target) == RealPath(request.document);
    // From reading to writing, so that no change by another process is lost.
    const std::shared_ptr<void> lock = isInPlace ? LockDocument(request.document, console) : nullptr;
    const auto loaded = OpenDocument(request.document);
    const EntryIndex entry = FindFeature(*loaded, request.document, request.feature);
    const std::string feature = DisplayPath(*loaded, entry);
    const Outcome outcome = ApplyName(*loaded, entry, request);
    // The file is written before the result is printed, so that a renaming that cannot be written is not reported.
    const bool needsOutput = outcome.newName != outcome.oldName || !request.output.empty() || target == kStandardStream;
    const bool mustWrite = !outcome.isRefused && needsOutput;
    if (mustWrite)
        WriteDocument(TextWithNames(*loaded, {{entry, outcome.newName}}), target, request.document, console);
    // Standard output contains either the document or the messages.
    const Console messages = target == kStandardStream ? console.OnStandardError() : console;
    (console.isJson ? PrintAsJson : Print)(*loaded, feature, request, outcome, messages);
    return outcome.isRefused ? kRefused : kSuccess;
}
