#include "QVRGenZFXUnicodeStringUtils.h"

#include "internal/NameRules.h"

QVRGenZFXUnicodeStringUtils& QVRGenZFXUnicodeStringUtils::operator=(const QVRGenZFXUnicodeStringUtils&) = default;

ZFXUnicodeString QVRGenZFXUnicodeStringUtils::RemoveSpaces(const ZFXUnicodeString& in) noexcept {
    return in.Strip(ZFXUnicodeString::StripEverywhere, ' ');
}

ZFXUnicodeString QVRGenZFXUnicodeStringUtils::RemoveDoubleQuotes(const ZFXUnicodeString& in) noexcept {
    return in.Strip(ZFXUnicodeString::StripEverywhere, '"');
}

ZFXUnicodeString QVRGenZFXUnicodeStringUtils::RemoveBackSlashes(const ZFXUnicodeString& in) noexcept {
    return in.Strip(ZFXUnicodeString::StripEverywhere, '\\');
}

ZFXUnicodeString QVRGenZFXUnicodeStringUtils::RemovePeriods(const ZFXUnicodeString& in) noexcept {
    return in.Strip(ZFXUnicodeString::StripEverywhere, '.');
}

ZFXUnicodeString QVRGenZFXUnicodeStringUtils::RemoveLeadingSpaces(const ZFXUnicodeString& in) noexcept {
    return in.Strip(ZFXUnicodeString::StripLeading, ' ');
}

ZFXUnicodeString QVRGenZFXUnicodeStringUtils::RemoveLeadingUnderscores(const ZFXUnicodeString& in) noexcept {
    return in.Strip(ZFXUnicodeString::StripLeading, '_');
}

ZFXUnicodeString QVRGenZFXUnicodeStringUtils::RemoveTrailingSpaces(const ZFXUnicodeString& in) noexcept {
    return in.Strip(ZFXUnicodeString::StripTrailing, ' ');
}

ZFXUnicodeString QVRGenZFXUnicodeStringUtils::RemoveTrailingUnderscores(const ZFXUnicodeString& in) noexcept {
    return in.Strip(ZFXUnicodeString::StripTrailing, '_');
}

ZFXUnicodeString QVRGenZFXUnicodeStringUtils::ReplaceBackslashWithForwardslash(const ZFXUnicodeString& in) noexcept {
    ZFXUnicodeString result(in);
    result.ReplaceAll("\\", "/");
    return result;
}

ZFXUnicodeString QVRGenZFXUnicodeStringUtils::ReplacePeriodWithDash(const ZFXUnicodeString& in) noexcept {
    ZFXUnicodeString result(in);
    result.ReplaceAll(".", "-");
    return result;
}

ZFXUnicodeString QVRGenZFXUnicodeStringUtils::TrucateToLegalLength(const ZFXUnicodeString& in) noexcept {
    return in.SubString(0, NameRules::MaxNameLength);
}

HRESULT QVRGenZFXUnicodeStringUtils::GetIntegerListFromString(
    ZFXUnicodeString& text, ZFXRawCollint& numbers,
    ZFXUnicodeString separator) noexcept { // NOLINT: the signature is fixed
    int n = 0;
    for (;;) {
        const int length = text.GetLengthInChar();
        const int at =
            separator.IsNull() != 0 ? -1 : text.SearchSubString(separator, 0, ZFXUnicodeString::SearchBackward);
        const ZFXUnicodeString token = at == -1 ? text : text.SubString(at + 1, length - at - 1);
        if (token.ConvertToNum(&n, "%d") > 0)
            numbers.Append(n);
        if (at == -1)
            return S_OK;
        text.Remove(at, length - at);
    }
}
