#include "QVRGenI18NUtils.h"

#include "QVRGenZFXUnicodeStringUtils.h"
#include "QVRNameUtil.h"
#include "internal/Numbering.h"

namespace {

/// Removes the prefix that late types begin with, in any letter case.
ZFXUnicodeString WithoutTypePrefix(const ZFXUnicodeString& name) {
    ZFXUnicodeString prefix = name.SubString(0, 3);
    prefix.ToUpper();
    const bool isPrefix = prefix == "QVR" || prefix == "SAM" || prefix == "LMS";
    return isPrefix ? name.SubString(3, -1) : name;
}

} // namespace

HRESULT QVRGenI18NUtils::GetTARNISCompliantFeatureName(const ZFXUnicodeString& name,
                                                       const ZFXUnicodeString& genericName,
                                                       ZFXUnicodeString& compliantName) noexcept {
    ZFXUnicodeString offending;
    if (!Failed(QVRNameUtil::DoesNameContainDoubleByteChar(name, offending))) {
        compliantName = QVRGenZFXUnicodeStringUtils::ReplacePeriodWithDash(name);
        return S_OK;
    }
    if (genericName.SearchSubString("QVR", 0, ZFXUnicodeString::SearchForward) == 0) {
        compliantName = WithoutTypePrefix(name);
        return S_OK;
    }
    compliantName = WithoutTypePrefix(Numbering::IssueGenericName(genericName));
    return S_OK;
}
