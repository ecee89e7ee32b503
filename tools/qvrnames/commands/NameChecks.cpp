#include "commands/NameChecks.h"

#include "LateTypes.h"
#include "QVRNameUtil.h"
#include "errors/ZFXError.h"

#include <cstdint>
#include <cstdio>

Verdict VerdictOf(HRESULT code) {
    if (!Failed(code))
        return {code, {}, {}};
    if (ZFXError* error = ZFXError::ZFXGetLastError(code, nullptr))
        return {code, error->GetMsgId(), error->GetNLSMessage().ConvertToChar()};
    char hexadecimal[16];
    std::snprintf(hexadecimal, sizeof hexadecimal, "0x%08X", static_cast<std::uint32_t>(code));
    return {code, {}, std::string("Refused without a message, code ") + hexadecimal + "."};
}

Verdict CheckText(const ZFXUnicodeString& name) {
    ZFXUnicodeString judged(name);
    ZFXUnicodeString offending;
    const HRESULT code = QVRNameUtil::IsNameValid(judged, 1);
    return VerdictOf(Failed(code) ? code : QVRNameUtil::DoesNameContainDoubleByteChar(judged, offending));
}

Verdict CheckFileName(const ZFXUnicodeString& name) {
    ZFXUnicodeString judged(name);
    return VerdictOf(QVRNameUtil::IsFileNameValid(judged));
}

Verdict CheckFeatureName(const ZFXISpecObject_var& feature, const ZFXUnicodeString& name) {
    ZFXISpecObject_var judged(feature);
    const ZFXUnicodeString type = judged == nullptr ? ZFXUnicodeString() : judged->GetLateType();
    if (type == LateTypes::QVRJobLT)
        return VerdictOf(QVRNameUtil::IsNameUniqueAcrossCases(judged, name));
    return VerdictOf(QVRNameUtil::CheckName(judged, name, type == LateTypes::QVRShellSectionEnhLT ? 0 : 1));
}

Verdict CheckSpecialRules(const ZFXISpecObject_var& feature) {
    ZFXISpecObject_var judged(feature);
    ZFXUnicodeString name;
    if (judged == nullptr || Failed(QVRNameUtil::GetObjectName(judged, name)))
        return {};
    const ZFXUnicodeString type = judged->GetLateType();
    if (type == LateTypes::QVRJobLT)
        return VerdictOf(QVRNameUtil::IsUniqueNameForJob(judged, name));
    if (LateTypes::IsOfKind(type, LateTypes::Kind::BoltTightening))
        return VerdictOf(QVRNameUtil::GetMorvelObjectName(judged, name));
    return {};
}

ZFXUnicodeString TrimmedName(const ZFXUnicodeString& name) {
    return name.Strip(ZFXUnicodeString::StripBoth).Strip(ZFXUnicodeString::StripBoth, '_');
}
