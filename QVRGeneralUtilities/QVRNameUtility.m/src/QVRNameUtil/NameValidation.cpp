#include "QVRNameUtil.h"

#include "internal/InputErrors.h"
#include "internal/NameRules.h"

#include <cassert>

HRESULT QVRNameUtil::IsNameValid(ZFXUnicodeString& name, unsigned char checkStartAndEnd) noexcept {
    HRESULT code = NameCheckUserLength(name);
    if (Failed(code))
        return code;
    if (checkStartAndEnd != 0)
        code = NameCheckStartAndEnd(name);
    return Failed(code) ? code : NameCheckIllegalCharacter(name, 0);
}

HRESULT QVRNameUtil::IsFileNameValid(ZFXUnicodeString& name) noexcept { return NameCheckIllegalCharacter(name, 1); }

HRESULT QVRNameUtil::CheckForIllegalCharacters(const ZFXUnicodeString& name) noexcept {
    return NameRules::Breaks(name, NameRules::kIllegal) ? E_FAIL : S_OK;
}

HRESULT QVRNameUtil::NameCheckUserLength(ZFXUnicodeString& name) noexcept {
    const int length = name.GetLengthInChar();
    if (length < 1)
        return InputErrorReturn(MessageId::NameLengthERR_02);
    if (length > NameRules::MaxNameLength)
        return InputErrorReturn(MessageId::NameLengthERR_01);
    return S_OK;
}

HRESULT QVRNameUtil::NameCheckStartAndEnd(ZFXUnicodeString& name) noexcept {
    assert(name.GetLengthInChar() > 0);
    return name[0].IsDigit() != 0 ? InputErrorReturn(MessageId::LeadingDigitERR_01) : S_OK;
}

HRESULT QVRNameUtil::NameCheckIllegalCharacter(ZFXUnicodeString& name, unsigned char isFileName) noexcept {
    using namespace NameRules;
    if (Breaks(name, isFileName != 0 ? kReservedInFileNames : kReservedInNames))
        return InputErrorReturn(MessageId::IllegalCharERR_01, {.returnCode = kNameRejected});
    if (isFileName != 0 && Breaks(name, kIllegalInFileNames))
        return InputErrorReturn(MessageId::IllegalCharERR_02, {.returnCode = kNameRejected});
    return S_OK;
}
