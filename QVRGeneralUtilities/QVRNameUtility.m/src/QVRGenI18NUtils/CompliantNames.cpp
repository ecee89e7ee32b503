#include "QVRGenI18NUtils.h"

#include "QVRGenZFXUnicodeStringUtils.h"
#include "QVRNameUtil.h"
#include "internal/Numbering.h"

namespace {

/// Late types begin with a prefix of their maker's, which says nothing to the solver's user.
ZFXUnicodeString WithoutTypePrefix(const ZFXUnicodeString& name) {
    ZFXUnicodeString prefix = name.SubString(0, 3);
    prefix.ToUpper();
    const bool known = prefix == "QVR" || prefix == "SAM" || prefix == "LMS";
    return known ? name.SubString(3, -1) : name;
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
    QVRGenI18NUtils* handedOut = Instance(); // whatever object this is
    int count = 0;
    const bool again = handedOut->FindNameAndNextID(genericName, count) != 0;
    handedOut->PushNameToList(genericName);
    compliantName = WithoutTypePrefix(again ? Numbering::Numbered(genericName + "-", count) : genericName);
    return S_OK;
}
