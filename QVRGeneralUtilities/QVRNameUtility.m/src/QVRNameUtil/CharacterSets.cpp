#include "QVRNameUtil.h"

#include "internal/NameRules.h"
#include "internal/Refusal.h"

#include <algorithm>
#include <string>

namespace {

/// Lists the units above the limit for the user and refuses the name if there are any.
HRESULT RefuseAbove(char16_t limit, const ZFXUnicodeString& name, ZFXUnicodeString& offending) {
    const auto isAbove = [limit](char16_t unit) { return unit > limit; };
    if (std::ranges::none_of(name.Units(), isAbove))
        return S_OK;
    const ZFXUnicodeString examined(name); // the list may be the name itself
    for (const char16_t unit : examined.Units()) {
        if (!isAbove(unit))
            continue;
        const unsigned short listed = unit;
        ZFXUnicodeString entry;
        entry.BuildFromUCChar(&listed, 1);
        offending.Append(entry.Append("  "));
    }
    offending.Resize(offending.GetLengthInChar() - 1);
    return InputErrorReturn(MessageId::DoubleByteCharErr_01, {.diagnostic = &offending});
}

constexpr int kMaxTagLength = 80;

} // namespace

HRESULT QVRNameUtil::DoesNameContainDoubleByteChar(const ZFXUnicodeString& name, ZFXUnicodeString& offending) noexcept {
    return RefuseAbove(0xFF, name, offending);
}

HRESULT QVRNameUtil::DoesNameContainSignedChar(const ZFXUnicodeString& name, ZFXUnicodeString& offending) noexcept {
    return RefuseAbove(0x7F, name, offending);
}

HRESULT QVRNameUtil::StripIllegalCharsFromFileName(ZFXUnicodeString& name) noexcept {
    std::u16string kept(name.Units());
    std::erase_if(kept, [](char16_t unit) { return NameRules::Breaks(unit, NameRules::kIllegalInFileNames); });
    name = ZFXUnicodeString(kept);
    return S_OK;
}

void QVRNameUtil::QuoteIfNeeded(ZFXUnicodeString& name) noexcept {
    const bool holdsSpace = name.SearchSubString(" ", 0, ZFXUnicodeString::SearchForward) != -1;
    const bool beginsQuoted = name.SearchSubString("\"", 0, ZFXUnicodeString::SearchForward) == 0;
    if (holdsSpace && !beginsQuoted)
        name = ZFXUnicodeString("\"").Append(name).Append("\"");
}

HRESULT QVRNameUtil::PadStrings(ZFXUnicodeString& name, ZFXUnicodeString& suffix, ZFXUnicodeString& prefix) noexcept {
    ZFXUnicodeString tag = prefix + name; // before the suffix changes: it may be one of the two
    const HRESULT code = StripIllegalCharsFromFileName(suffix);
    tag.Append("_").Append(suffix.ConvertToChar());
    tag.ReplaceAll(" ", "");
    tag.Resize(kMaxTagLength);
    name = tag;
    return code;
}
