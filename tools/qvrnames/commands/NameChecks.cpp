#include "commands/NameChecks.h"

#include "commands/BaseNames.h"
#include "commands/Rules.h"

#include "QVRBaseFeatureAlias.h"
#include "QVRNameUtil.h"
#include "errors/ZFXError.h"

#include <cstdint>
#include <cstdio>
#include <tuple>

namespace {

constexpr const char* kTextRequirement = "The text of the name must be readable.";
constexpr const char* kJobRequirement = "The job must be in a job container whose father is the analysis model, and "
                                        "every case and its first job container must be readable.";
constexpr const char* kScopeRequirement = "The features that the name is compared with must be readable.";

Verdict FailedWithoutError(HRESULT code, const char* operation, const char* requirement) {
    char hexadecimal[16];
    std::snprintf(hexadecimal, sizeof hexadecimal, "0x%08X", static_cast<std::uint32_t>(code));
    return {true, kRequestFailed, std::string(operation) + " failed with code " + hexadecimal + ". " + requirement};
}

} // namespace

Verdict VerdictOf(HRESULT code, const char* operation, const char* requirement) {
    if (!Failed(code))
        return {};
    if (ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr))
        return {true, error->GetMsgId(), error->GetNLSMessage().ConvertToChar()};
    return FailedWithoutError(code, operation, requirement);
}

Verdict CheckNewName(const LoadedDocument& loaded, EntryIndex entry, const ZFXUnicodeString& name) {
    MemoryFeature feature = loaded.entries[entry].feature;
    const ZFXUnicodeString former = feature.StoredAlias();
    ZFXListValZFXISpecObject_var features;
    features.Append(feature);
    ZFXListVal<QVRNameFinding> findings;
    feature.Alias(QVRBaseFeatureAlias::Trimmed(name));
    std::ignore = QVRNameUtil::CheckNames(features, findings); // always S_OK
    feature.Alias(former);
    return findings.Size() == 0 ? Verdict{} : VerdictOf(findings[1], IndexByObject(loaded));
}

ZFXListVal<QVRNameFinding> CheckStoredNames(const LoadedDocument& loaded) {
    ZFXListValZFXISpecObject_var features;
    for (const EntryIndex entry : NamedEntries(loaded))
        features.Append(loaded.entries[entry].feature);
    ZFXListVal<QVRNameFinding> findings;
    std::ignore = QVRNameUtil::CheckNames(features, findings); // always S_OK
    return findings;
}

Verdict VerdictOf(const QVRNameFinding& finding, const EntriesByObject& entries) {
    if (finding.messageId.IsNull() == 0) {
        const auto other = entries.find(ZFXIdentityOf(finding.other));
        return {true, finding.messageId.ConvertToChar(), finding.Message().ConvertToChar(),
                other == entries.end() ? std::nullopt : std::optional(other->second)};
    }
    return IsJob(finding.feature) ? FailedWithoutError(finding.code, "IsNameUniqueAcrossCases", kJobRequirement)
                                  : FailedWithoutError(finding.code, "CheckName", kScopeRequirement);
}

Verdict CheckText(const ZFXUnicodeString& name) {
    ZFXUnicodeString text(name);
    ZFXUnicodeString offending;
    const HRESULT code = QVRNameUtil::IsNameValid(text, 1);
    if (Failed(code))
        return VerdictOf(code, "IsNameValid", kTextRequirement);
    return VerdictOf(QVRNameUtil::DoesNameContainDoubleByteChar(text, offending), "DoesNameContainDoubleByteChar",
                     kTextRequirement);
}

Verdict CheckFileName(const ZFXUnicodeString& name) {
    ZFXUnicodeString text(name);
    return VerdictOf(QVRNameUtil::IsFileNameValid(text), "IsFileNameValid", kTextRequirement);
}
