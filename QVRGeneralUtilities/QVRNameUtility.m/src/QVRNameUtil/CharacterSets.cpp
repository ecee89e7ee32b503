#include "QVRNameUtil.h"

#include "internal/InputErrors.h"
#include "internal/NameRules.h"
#include "internal/TextRules.h"

#include <algorithm>
#include <string>

namespace {

constexpr int kMaxTagLength = 80; // UTF-16 code units

/// Returns S_OK if no unit of the name is above the limit. Otherwise appends these units to `offending` and raises
/// DoubleByteCharErr_01.
[[nodiscard]] HRESULT RejectUnitsAbove(char16_t limit, const ZFXUnicodeString& name, ZFXUnicodeString& offending) {
    return TextRules::AppendUnitsAbove(limit, name, offending)
               ? InputErrorReturn(QVR_HERE, MessageId::DoubleByteCharErr_01, {.diagnostic = &offending})
               : S_OK;
}

} // namespace

bool TextRules::AppendUnitsAbove(char16_t limit, const ZFXUnicodeString& name, ZFXUnicodeString& list) {
    const auto isAbove = [limit](char16_t unit) { return unit > limit; };
    if (std::ranges::none_of(name.Units(), isAbove))
        return false;
    const ZFXUnicodeString examined(name); // `list` may be the same object as `name`
    for (const char16_t unit : examined.Units()) {
        if (!isAbove(unit))
            continue;
        const unsigned short listed = unit;
        ZFXUnicodeString entry;
        entry.BuildFromUCChar(&listed, 1);
        list.Append(entry.Append("  "));
    }
    list.Resize(list.GetLengthInChar() - 1);
    return true;
}

HRESULT QVRNameUtil::DoesNameContainDoubleByteChar(const ZFXUnicodeString& name, ZFXUnicodeString& offending) noexcept {
    return RejectUnitsAbove(0xFF, name, offending);
}

HRESULT QVRNameUtil::DoesNameContainSignedChar(const ZFXUnicodeString& name, ZFXUnicodeString& offending) noexcept {
    return RejectUnitsAbove(0x7F, name, offending);
}

HRESULT QVRNameUtil::StripIllegalCharsFromFileName(ZFXUnicodeString& name) noexcept {
    std::u16string kept(name.Units());
    std::erase_if(kept, [](char16_t unit) { return NameRules::Breaks(unit, NameRules::kIllegalInFileNames); });
    name = ZFXUnicodeString(kept);
    return S_OK;
}

void QVRNameUtil::QuoteIfNeeded(ZFXUnicodeString& name) noexcept {
    const bool hasSpace = name.SearchSubString(" ", 0, ZFXUnicodeString::SearchForward) != -1;
    const bool isQuoted = name.SearchSubString("\"", 0, ZFXUnicodeString::SearchForward) == 0;
    if (hasSpace && !isQuoted)
        name = ZFXUnicodeString("\"").Append(name).Append("\"");
}

HRESULT QVRNameUtil::PadStrings(ZFXUnicodeString& name, ZFXUnicodeString& suffix, ZFXUnicodeString& prefix) noexcept {
    ZFXUnicodeString tag = prefix + name; // before `suffix` changes, because it may be one of these objects
    const HRESULT code = StripIllegalCharsFromFileName(suffix);
    tag.Append("_").Append(suffix.ConvertToChar());
    tag.ReplaceAll(" ", "");
    tag.Resize(kMaxTagLength);
    name = tag;
    return code;
}
