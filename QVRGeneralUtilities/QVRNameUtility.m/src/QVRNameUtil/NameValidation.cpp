#include "QVRNameUtil.h"

#include "internal/TextRules.h"

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
    return Raise(QVR_HERE, TextRules::BrokenByLength(name));
}

HRESULT QVRNameUtil::NameCheckStartAndEnd(ZFXUnicodeString& name) noexcept {
    assert(name.GetLengthInChar() > 0);
    return Raise(QVR_HERE, TextRules::BrokenByFirstCharacter(name));
}

HRESULT QVRNameUtil::NameCheckIllegalCharacter(ZFXUnicodeString& name, unsigned char isFileName) noexcept {
    using namespace NameRules;
    if (isFileName == 0)
        return Raise(QVR_HERE, TextRules::BrokenByReservedCharacter(name));
    if (Breaks(name, kReservedInFileNames))
        return Raise(QVR_HERE, Decision::Broken(MessageId::IllegalCharERR_01));
    return Breaks(name, kIllegalInFileNames) ? Raise(QVR_HERE, Decision::Broken(MessageId::IllegalCharERR_02)) : S_OK;
}
