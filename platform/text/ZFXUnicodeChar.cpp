#include "text/ZFXUnicodeChar.h"

#include "text/Surrogates.h"
#include "text/Utf8.h"

#include <string_view>

ZFXUnicodeChar& ZFXUnicodeChar::operator=(const char* text) noexcept {
    const std::string_view narrow(text == nullptr ? "" : text);
    const std::uint32_t code = narrow.empty() ? 0 : Utf8::First(narrow).code;
    m_unit = code < Surrogates::kFirstCode ? static_cast<char16_t>(code) : Surrogates::HighOf(code);
    return *this;
}

int ZFXUnicodeChar::IsSpace() const noexcept {
    if (m_unit < 0x80)
        return m_unit == u' ' || (m_unit >= u'\t' && m_unit <= u'\r');
    switch (m_unit) {
    case 0x0085:
    case 0x00A0:
    case 0x1680:
    case 0x2028:
    case 0x2029:
    case 0x202F:
    case 0x205F:
    case 0x3000:
        return 1;
    default:
        return m_unit >= 0x2000 && m_unit <= 0x200A;
    }
}
