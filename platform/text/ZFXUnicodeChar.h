#pragma once

#include "base/ZFXPlatformExport.h"

/// One UTF-16 code unit, as a value.
///
/// A character above U+FFFF has two code units, a surrogate pair; a ZFXUnicodeChar is then one half of the pair.
/// A ZFXUnicodeChar is used for the characters that name rules examine, such as separators and digits. All of them have
/// one code unit.
class ZFX_PLATFORM_EXPORT ZFXUnicodeChar {
public:
    /// Constructs U+0000.
    constexpr ZFXUnicodeChar() noexcept = default;
    /// Constructs an ASCII character. Any other byte is not a complete character and gives U+FFFD.
    constexpr ZFXUnicodeChar(char c) noexcept : m_unit(UnitOf(c)) {}

    /// Returns the character of any code unit, including half a surrogate pair.
    static constexpr ZFXUnicodeChar FromUnit(char16_t unit) noexcept {
        ZFXUnicodeChar result;
        result.m_unit = unit;
        return result;
    }

    /// Assigns an ASCII character. Any other byte gives U+FFFD.
    ZFXUnicodeChar& operator=(char c) noexcept {
        m_unit = UnitOf(c);
        return *this;
    }
    /// Assigns the first code unit of a zero-terminated UTF-8 text, or U+0000 if the text is null or empty.
    ZFXUnicodeChar& operator=(const char* text) noexcept;

    /// Returns 1 if the code units are equal, else 0. Either side can be a char.
    friend constexpr int operator==(const ZFXUnicodeChar& a, const ZFXUnicodeChar& b) noexcept {
        return a.m_unit == b.m_unit;
    }
    /// Returns 1 if the code units differ, else 0. Either side can be a char.
    friend constexpr int operator!=(const ZFXUnicodeChar& a, const ZFXUnicodeChar& b) noexcept {
        return a.m_unit != b.m_unit;
    }

    /// Returns 1 for '0' to '9', else 0. Digits of other scripts are not included.
    [[nodiscard]] constexpr int IsDigit() const noexcept { return m_unit >= u'0' && m_unit <= u'9'; }
    /// Returns 1 for a character with the Unicode property White_Space, else 0.
    [[nodiscard]] int IsSpace() const noexcept;
    /// Returns the code unit.
    [[nodiscard]] constexpr unsigned short ConvertToUC2Bytes() const noexcept { return m_unit; }

private:
    static constexpr char16_t UnitOf(char c) noexcept {
        const auto code = static_cast<unsigned char>(c);
        return code < 0x80 ? static_cast<char16_t>(code) : u'\uFFFD';
    }

    char16_t m_unit = 0;
};
