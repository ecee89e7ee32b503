#include "BadInput.h"
#include "Commands.h"
#include "FeaturePaths.h"
#include "Printing.h"
#include "Run.h"

#include "QVRNameUtil.h"
#include "analysis/WorkbenchUtilities.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace {

ZFXUnicodeString BaseOf(const ProposeRequest& request, ZFXISpecObject_var feature) {
    ZFXUnicodeString base = TextOf(request.base);
    if (!base.IsNull())
        return base;
    QVRNameUtil::CreateBaseName(feature, base);
    if (!base.IsNull())
        return base;
    const std::string type = feature == nullptr ? "" : feature->GetLateType().ConvertToChar();
    throw BadInput(request.document + ": \"" + request.feature + "\" is of the late type \"" + type +
                   "\", which has no base name; give one with --base");
}

/// The case that holds the feature; empty, which stands for the current case, when none does.
ZFXISamAnalysisCase_var CaseOf(const ZFXISpecObject_var& feature) {
    ZFXISpecObject_var holder;
    if (Failed(QVRAnalysisEntityUtils::GetParentCaseFromObject(feature, holder)))
        return {};
    return holder;
}

} // namespace

int ProposeName(const ProposeRequest& request, Console console) {
    const auto loaded = OpenDocument(request.document);
    const std::uint32_t entry = FindNamedFeature(*loaded, request.document, request.feature);
    ZFXISpecObject_var feature = loaded->entries[entry].feature;
    const ZFXUnicodeString base = BaseOf(request, feature);
    ZFXISamAnalysisCase_var analysisCase = CaseOf(feature);
    ZFXUnicodeString name(base);
    QVRNameUtil::GetUniqueName(name, feature, analysisCase);
    const bool isProposed = name != base; // it has no other way to tell
    if (console.isJson) {
        nlohmann::ordered_json said{{"feature", TellingOf(*loaded, entry)},
                                    {"type", loaded->entries[entry].feature.LateType().ConvertToChar()},
                                    {"base", base.ConvertToChar()}};
        said["proposal"] = isProposed ? nlohmann::ordered_json(name.ConvertToChar()) : nlohmann::ordered_json();
        PrintJson(console.out, said);
    } else if (isProposed) {
        PrintTable(console.out, {{"base name", Printable(base.ConvertToChar())},
                                 {"next free name", Printable(name.ConvertToChar())}});
    } else {
        console.out << "no name can be proposed: there is no analysis case to number in, or the names in use "
                       "cannot be listed\n";
    }
    return isProposed ? kFine : kRefused;
}
