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

namespace {

/// The base of every job, which has an operation of its own instead of a row among the bases.
constexpr const char* kJobBase = "Job-";

bool IsJob(const ZFXISpecObject_var& feature) {
    return feature != nullptr && feature->GetLateType() == LateTypes::QVRJobLT;
}

ZFXUnicodeString BaseOf(const ProposeRequest& request, ZFXISpecObject_var feature) {
    ZFXUnicodeString base = ToUnicode(request.base);
    if (IsJob(feature) && !base.IsNull() && base != kJobBase)
        throw BadInput(DisplayFileName(request.document) +
                       ": jobs are numbered after \"Job-\" alone; leave --base out");
    if (!base.IsNull())
        return base;
    QVRNameUtil::CreateBaseName(feature, base);
    if (!base.IsNull())
        return base;
    if (IsJob(feature))
        return kJobBase;
    const std::string type = feature == nullptr ? "" : feature->GetLateType().ConvertToChar();
    throw BadInput(DisplayFileName(request.document) + ": \"" + request.feature + "\" is of the late type \"" + type +
                   "\", which has no base name; give one with --base");
}

/// The case that holds the feature; empty, which stands for the current case, when none does.
ZFXISamAnalysisCase_var CaseOf(const ZFXISpecObject_var& feature) {
    ZFXISpecObject_var holder;
    if (Failed(QVRAnalysisEntityUtils::GetParentCaseFromObject(feature, holder)))
        return {};
    return holder;
}

/// The next free name, in the scope that the feature's kind has; the base itself when there is none. Jobs and
/// mesh parts are numbered over the whole document.
ZFXUnicodeString NextName(ZFXISpecObject_var feature, const ZFXUnicodeString& base) {
    ZFXUnicodeString name(base);
    if (IsJob(feature)) {
        QVRNameUtil::GetUniqueNameForJob(name);
        return name;
    }
    if (ZFXIMSHMeshPart_var(feature) != nullptr) {
        QVRNameUtil::GetUniqueNameForMeshPart(feature, name);
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

/// The name of a job that is still to be made.
int ProposeJobName(const ProposeRequest& request, Console console) {
    if (!request.feature.empty() || !request.base.empty())
        throw BadInput("--job stands for a new job: leave FEATURE and --base out");
    const auto loaded = OpenDocument(request.document);
    ZFXUnicodeString name;
    QVRNameUtil::GetUniqueNameForJob(name);
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
    const bool isProposed = name != base; // it has no other way to tell
    if (console.isJson) {
        nlohmann::ordered_json said{{"feature", DisplayPath(*loaded, entry)},
                                    {"type", loaded->entries[entry].feature.LateType().ConvertToChar()},
                                    {"base", base.ConvertToChar()}};
        said["proposal"] = isProposed ? nlohmann::ordered_json(name.ConvertToChar()) : nlohmann::ordered_json();
        PrintJson(console.out, said);
    } else if (isProposed) {
        PrintProposal(base.ConvertToChar(), name.ConvertToChar(), console);
    } else {
        console.out << "no name can be proposed: there is no analysis case to number in, or the names in use "
                       "cannot be listed\n";
    }
    return isProposed ? kSuccess : kRefused;
}
