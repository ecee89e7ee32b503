#pragma once

#include "base/ZFXPlatformExport.h"

/// One character of a name: a value that holds one UTF-16 code unit.
class ZFX_PLATFORM_EXPORT ZFXUnicodeChar {
public:
    /// U+0000.
    constexpr ZFXUnicodeChar() noexcept = default;
    /// The character of an ASCII byte; any other byte is no character of its own and gives U+FFFD.
    constexpr ZFXUnicodeChar(char c) noexcept : m_unit(UnitOf(c)) {}

    /// The character of any unit, half a surrogate pair included.
    static constexpr ZFXUnicodeChar FromUnit(char16_t unit) noexcept {
        ZFXUnicodeChar result;
        result.m_unit = unit;
        return result;
    }

    /// As the constructor.
    ZFXUnicodeChar& operator=(char c) noexcept {
        m_unit = UnitOf(c);
        return *this;
    }
    /// The first code unit of a zero-terminated UTF-8 text; U+0000 for a null or empty one.
    ZFXUnicodeChar& operator=(const char* text) noexcept;

    /// Returns nonzero if the units are equal. Either side may be a char.
    friend constexpr int operator==(const ZFXUnicodeChar& a, const ZFXUnicodeChar& b) noexcept {
        return a.m_unit == b.m_unit;
    }
    /// Returns nonzero if the units differ. Either side may be a char.
    friend constexpr int operator!=(const ZFXUnicodeChar& a, const ZFXUnicodeChar& b) noexcept {
        return a.m_unit != b.m_unit;
    }

    /// Nonzero for '0' to '9' and nothing else.
    constexpr int IsDigit() const noexcept { return m_unit >= u'0' && m_unit <= u'9'; }
    /// Nonzero for the characters of the Unicode property White_Space.
    int IsSpace() const noexcept;
    /// The unit.
    constexpr unsigned short ConvertToUC2Bytes() const noexcept { return m_unit; }

private:
    static constexpr char16_t UnitOf(char c) noexcept {
        const auto code = static_cast<unsigned char>(c);
        return code < 0x80 ? static_cast<char16_t>(code) : u'\uFFFD';
    }

    char16_t m_unit = 0;
};
