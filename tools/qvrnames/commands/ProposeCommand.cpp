#include "commands/BaseNames.h"
#include "commands/Commands.h"
#include "document/FeaturePaths.h"
#include "files/FileErrors.h"
#include "terminal/DisplayWidth.h"
#include "terminal/Table.h"

#include "QVRNameUtil.h"
#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXIMSHMeshPart.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <tuple>

namespace {

/// Returns the base name of the request or, by default, that of the feature's late type.
ZFXUnicodeString BaseOf(const ProposeRequest& request, const ZFXISpecObject_var& feature) {
    const ZFXUnicodeString given = ToUnicode(request.base);
    if (IsJob(feature) && !given.IsNull() && given != kJobBase)
        ThrowBadInput(request.document, "the base name of a job is always \"Job-\"; omit --base");
    const ZFXUnicodeString base = given.IsNull() ? BaseNameOf(feature) : given;
    if (!base.IsNull())
        return base;
    const std::string type = feature == nullptr ? "" : feature->GetLateType().ConvertToChar();
    ThrowBadInput(request.document, "\"" + request.feature + "\" has the late type \"" + type +
                                        "\", which has no base name; specify one with --base");
}

/// Returns the case that contains the feature, or an empty handle, which means the current case.
ZFXISamAnalysisCase_var ParentCaseOf(const ZFXISpecObject_var& feature) {
    ZFXISpecObject_var parentCase;
    if (Failed(QVRAnalysisEntityUtils::GetParentCaseFromObject(feature, parentCase)))
        return {};
    return parentCase;
}

/// Sets `name` to the next free name in the scope of the feature's kind. The scope of jobs and mesh parts is the whole
/// document.
HRESULT SetNextName(ZFXISpecObject_var feature, const ZFXUnicodeString& base, ZFXUnicodeString& name) {
    if (IsJob(feature))
        return QVRNameUtil::GetUniqueNameForJob(name);
    if (ZFXIMSHMeshPart_var(feature) != nullptr) {
        name = base;
        return QVRNameUtil::GetUniqueNameForMeshPart(feature, name);
    }
    ZFXISamAnalysisCase_var analysisCase = ParentCaseOf(feature);
    ZFXListValZFXUnicodeString names;
    const HRESULT code = QVRNameUtil::GetUniqueNames(base, feature, analysisCase, 1, names);
    if (!Failed(code))
        name = names[1];
    return code;
}

struct Proposal {
    std::string base;
    std::optional<std::string> name = {}; ///< nothing if no name can be proposed
    Verdict verdict = {};                 ///< why there is no name, or which rule the name breaks
};

Proposal Propose(const LoadedDocument& loaded, EntryIndex entry, const ZFXUnicodeString& base) {
    Proposal proposal{base.ConvertToChar()};
    ZFXUnicodeString name;
    const HRESULT code = SetNextName(loaded.entries[entry].feature, base, name);
    if (Failed(code)) {
        proposal.verdict = VerdictOf(code, "GetUniqueNames",
                                     "There must be an analysis case, a set must contain the feature, and the names in "
                                     "use must be readable.");
        return proposal;
    }
    proposal.name = name.ConvertToChar();
    proposal.verdict = CheckNewName(loaded, entry, name);
    return proposal;
}

void Print(const LoadedDocument& loaded, const Proposal& proposal, Console console) {
    const Verdict& verdict = proposal.verdict;
    Table table{{}, {{{"base name"}, {Printable(proposal.base)}}}};
    table.rows.push_back({{"next free name"}, {proposal.name ? Printable(*proposal.name) : "-", Style::Proposal}});
    if (verdict.isRefused)
        table.rows.push_back({{proposal.name ? "refused" : "no proposal"},
                              {verdict.rule + ": " + ReasonOf(loaded, verdict), Style::Refusal}});
    PrintTable(console.out, table, console.screen);
}

/// Proposes the name of a new job.
int ProposeJobName(const ProposeRequest& request, Console console) {
    if (!request.feature.empty() || !request.base.empty())
        throw BadInput("--job proposes the name of a new job; omit FEATURE and --base");
    const auto loaded = OpenDocument(request.document);
    ZFXUnicodeString name;
    std::ignore = QVRNameUtil::GetUniqueNameForJob(name);
    if (console.isJson)
        PrintJson(console.out, {{"base", kJobBase}, {"proposal", name.ConvertToChar()}});
    else
        Print(*loaded, {kJobBase, name.ConvertToChar()}, console);
    return kSuccess;
}

} // namespace

int ProposeName(const ProposeRequest& request, Console console) {
    if (request.isJob)
        return ProposeJobName(request, console);
    if (request.feature.empty())
        throw BadInput("FEATURE is required (see --help)");
    const auto loaded = OpenDocument(request.document);
    const EntryIndex entry = FindFeature(*loaded, request.document, request.feature);
    const Proposal proposal = Propose(*loaded, entry, BaseOf(request, loaded->entries[entry].feature));
    if (console.isJson) {
        nlohmann::ordered_json json{{"feature", DisplayPath(*loaded, entry)},
                                    {"type", loaded->entries[entry].feature.LateType().ConvertToChar()},
                                    {"base", proposal.base},
                                    {"proposal", nullptr}};
        if (proposal.name)
            json["proposal"] = *proposal.name;
        AddVerdict(json, *loaded, proposal.verdict);
        PrintJson(console.out, json);
    } else {
        Print(*loaded, proposal, console);
    }
    return proposal.verdict.isRefused ? kRefused : kSuccess;
}
