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
    return Raise(TextRules::BrokenByLength(name));
}

HRESULT QVRNameUtil::NameCheckStartAndEnd(ZFXUnicodeString& name) noexcept {
    assert(name.GetLengthInChar() > 0);
    return Raise(TextRules::BrokenByFirstCharacter(name));
}

HRESULT QVRNameUtil::NameCheckIllegalCharacter(ZFXUnicodeString& name, unsigned char isFileName) noexcept {
    using namespace NameRules;
    if (isFileName == 0)
        return Raise(TextRules::BrokenByReservedCharacter(name));
    if (Breaks(name, kReservedInFileNames))
        return Raise(Decision::Broken(MessageId::IllegalCharERR_01));
    return Breaks(name, kIllegalInFileNames) ? Raise(Decision::Broken(MessageId::IllegalCharERR_02)) : S_OK;
}
