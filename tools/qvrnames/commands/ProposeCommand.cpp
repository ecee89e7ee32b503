#include "ExitCode.h"
#include "commands/Commands.h"
#include "document/FeaturePaths.h"
#include "files/FileErrors.h"
#include "terminal/DisplayWidth.h"
#include "terminal/Table.h"

#include "LateTypes.h"
#include "QVRNameUtil.h"
#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXIMSHMeshPart.h"

#include <nlohmann/json.hpp>

#include <ostream>
#include <tuple>

namespace {

/// The base name of all jobs. GetUniqueNameForJob, which numbers jobs, uses it; CreateBaseName does not return it.
constexpr const char* kJobBase = "Job-";

bool IsJob(const ZFXISpecObject_var& feature) {
    return feature != nullptr && feature->GetLateType() == LateTypes::QVRJobLT;
}

ZFXUnicodeString BaseOf(const ProposeRequest& request, ZFXISpecObject_var feature) {
    ZFXUnicodeString base = ToUnicode(request.base);
    if (IsJob(feature) && !base.IsNull() && base != kJobBase)
        throw BadInput(DisplayFileName(request.document) + ": the base name of a job is always \"Job-\"; omit --base");
    if (!base.IsNull())
        return base;
    std::ignore = QVRNameUtil::CreateBaseName(feature, base); // empty on failure
    if (!base.IsNull())
        return base;
    if (IsJob(feature))
        return kJobBase;
    const std::string type = feature == nullptr ? "" : feature->GetLateType().ConvertToChar();
    throw BadInput(DisplayFileName(request.document) + ": \"" + request.feature + "\" has the late type \"" + type +
                   "\", which has no base name; specify one with --base");
}

/// Returns the case that contains the feature, or an empty handle, which means the current case.
ZFXISamAnalysisCase_var CaseOf(const ZFXISpecObject_var& feature) {
    ZFXISpecObject_var parentCase;
    if (Failed(QVRAnalysisEntityUtils::GetParentCaseFromObject(feature, parentCase)))
        return {};
    return parentCase;
}

/// Returns the next free name in the scope of the feature's kind, or the base name if none can be proposed. The scope
/// of jobs and mesh parts is the whole document.
ZFXUnicodeString NextName(ZFXISpecObject_var feature, const ZFXUnicodeString& base) {
    ZFXUnicodeString name(base);
    if (IsJob(feature)) {
        std::ignore = QVRNameUtil::GetUniqueNameForJob(name);
        return name;
    }
    if (ZFXIMSHMeshPart_var(feature) != nullptr) {
        std::ignore = QVRNameUtil::GetUniqueNameForMeshPart(feature, name); // unchanged on failure
        return name;
    }
    ZFXISamAnalysisCase_var analysisCase = CaseOf(feature);
    QVRNameUtil::GetUniqueName(name, feature, analysisCase);
    return name;
}

void PrintProposal(const std::string& base, const std::string& name, Console console) {
    const Table table{{},
                      {{{"base name"}, {Printable(base)}}, {{"next free name"}, {Printable(name), Style::Proposal}}}};
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
        PrintProposal(kJobBase, name.ConvertToChar(), console);
    return kSuccess;
}

} // namespace

int ProposeName(const ProposeRequest& request, Console console) {
    if (request.isJob)
        return ProposeJobName(request, console);
    if (request.feature.empty())
        throw BadInput("FEATURE is required; see --help");
    const auto loaded = OpenDocument(request.document);
    const std::uint32_t entry = FindFeature(*loaded, request.document, request.feature);
    ZFXISpecObject_var feature = loaded->entries[entry].feature;
    const ZFXUnicodeString base = BaseOf(request, feature);
    const ZFXUnicodeString name = NextName(feature, base);
    const bool isProposed = name != base; // GetUniqueName returns no code
    if (console.isJson) {
        nlohmann::ordered_json json{{"feature", DisplayPath(*loaded, entry)},
                                    {"type", loaded->entries[entry].feature.LateType().ConvertToChar()},
                                    {"base", base.ConvertToChar()}};
        json["proposal"] = isProposed ? nlohmann::ordered_json(name.ConvertToChar()) : nlohmann::ordered_json();
        PrintJson(console.out, json);
    } else if (isProposed) {
        PrintProposal(base.ConvertToChar(), name.ConvertToChar(), console);
    } else {
        console.out << "no name can be proposed: there is no analysis case, or the names in use cannot be listed\n";
    }
    return isProposed ? kSuccess : kRefused;
}
