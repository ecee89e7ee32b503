#include "commands/NameChecks.h"

#include "LateTypes.h"
#include "QVRNameUtil.h"
#include "errors/ZFXError.h"

#include <cstdint>
#include <cstdio>

namespace {

constexpr const char* kTextRequirement = "The text of the name must be readable.";
constexpr const char* kJobRequirement = "The job must be in a job container whose father is the analysis model, and "
                                        "every case and its first job container must be readable.";
constexpr const char* kScopeRequirement = "The features that the name is compared with must be readable.";

} // namespace

Verdict VerdictOf(HRESULT code, const char* operation, const char* requirement) {
    if (!Failed(code))
        return {code, {}, {}};
    if (ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr))
        return {code, error->GetMsgId(), error->GetNLSMessage().ConvertToChar()};
    char hexadecimal[16];
    std::snprintf(hexadecimal, sizeof hexadecimal, "0x%08X", static_cast<std::uint32_t>(code));
    return {code, {}, std::string(operation) + " failed with code " + hexadecimal + ". " + requirement};
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

Verdict CheckFeatureName(const ZFXISpecObject_var& feature, const ZFXUnicodeString& name) {
    ZFXISpecObject_var checked(feature);
    const ZFXUnicodeString type = checked == nullptr ? ZFXUnicodeString() : checked->GetLateType();
    if (type == LateTypes::QVRJobLT)
        return VerdictOf(QVRNameUtil::IsNameUniqueAcrossCases(checked, name), "IsNameUniqueAcrossCases",
                         kJobRequirement);
    const unsigned char checkStartAndEnd = type == LateTypes::QVRShellSectionEnhLT ? 0 : 1;
    return VerdictOf(QVRNameUtil::CheckName(checked, name, checkStartAndEnd), "CheckName", kScopeRequirement);
}

Verdict CheckSpecialRules(const ZFXISpecObject_var& feature) {
    ZFXISpecObject_var checked(feature);
    ZFXUnicodeString name;
    if (checked == nullptr || Failed(QVRNameUtil::GetObjectName(checked, name)))
        return {};
    const ZFXUnicodeString type = checked->GetLateType();
    if (type == LateTypes::QVRJobLT)
        return VerdictOf(QVRNameUtil::IsUniqueNameForJob(checked, name), "IsUniqueNameForJob", kScopeRequirement);
    if (LateTypes::IsOfKind(type, LateTypes::Kind::BoltTightening))
        return VerdictOf(QVRNameUtil::GetMorvelObjectName(checked, name), "GetMorvelObjectName", kScopeRequirement);
    return {};
}

ZFXUnicodeString TrimmedName(const ZFXUnicodeString& name) {
    return name.Strip(ZFXUnicodeString::StripBoth).Strip(ZFXUnicodeString::StripBoth, '_');
}
