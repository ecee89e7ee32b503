#pragma once

#include "base/ZFXPlatformExport.h"
#include "text/ZFXUnicodeChar.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// A text: a sequence of UTF-16 code units. A string is a value; a copy has its own text.
///
/// - Lengths, counts and positions are in code units. Positions count from 0.
/// - Positions and counts outside the text are clamped to it. A negative count means "to the end".
/// - Narrow text (`const char*`) is UTF-8. When read, a byte that is no part of a well-formed character becomes U+FFFD;
///   when written, half a surrogate pair becomes U+FFFD.
/// - An argument can be the string that the operation changes.
/// - A text of up to 32 code units is stored in the object: constructing or copying it allocates no memory.
/// - Constant operations on one string can run on several threads at a time.
class ZFX_PLATFORM_EXPORT ZFXUnicodeString {
public:
    /// The occurrence that a search returns: the first or the last.
    enum ZFXSearchMode { SearchForward = 1, SearchBackward = 2 };
    /// The places where Strip removes a character.
    enum ZFXStripMode { StripLeading = 1, StripTrailing = 2, StripBoth = 3, StripEverywhere = 4 };

    /// Constructs an empty string.
    ZFXUnicodeString() noexcept { m_storage.inlined[0] = 0; }
    /// Constructs a string from zero-terminated UTF-8. Null gives an empty string.
    ZFXUnicodeString(const char* text);
    /// Constructs a string of n times `c`.
    ZFXUnicodeString(const ZFXUnicodeChar& c, std::size_t n);
    /// Constructs a string from code units, which are copied.
    explicit ZFXUnicodeString(std::u16string_view units) : ZFXUnicodeString() { Assign(units); }
    /// Copies the text.
    ZFXUnicodeString(const ZFXUnicodeString& other) : ZFXUnicodeString() {
        if (other.m_length <= kInlineUnits && other.IsInline())
            CopyInline(other);
        else
            Assign(other.Units());
    }
    /// Moves the text of `other`, which is empty afterwards.
    ZFXUnicodeString(ZFXUnicodeString&& other) noexcept { TakeFrom(other); }
    ~ZFXUnicodeString() {
        DropNarrow();
        if (!IsInline())
            FreeHeap();
    }

    /// Copies the text.
    ZFXUnicodeString& operator=(const ZFXUnicodeString& other);
    /// Moves the text of `other`, which is empty afterwards. Does nothing if `other` is this string.
    ZFXUnicodeString& operator=(ZFXUnicodeString&& other) noexcept;
    /// Assigns zero-terminated UTF-8; null gives an empty text. `text` can be the result of this ConvertToChar.
    ZFXUnicodeString& operator=(const char* text);

    /// Sets the text to n in decimal. Does nothing if `format` is not "%d".
    void BuildFromNum(int n, const char* format);
    /// Sets the text to `count` code units read from `units`. The text is empty if `units` is null or `count` is not
    /// positive.
    void BuildFromUCChar(const unsigned short* units, int count);

    /// Returns the number of code units.
    [[nodiscard]] int GetLengthInChar() const noexcept { return m_length; }
    /// Returns 1 if the text is empty, else 0.
    [[nodiscard]] int IsNull() const noexcept { return m_length == 0; }
    /// Returns the code units, valid until the string is changed or destroyed. [borrowed]
    [[nodiscard]] std::u16string_view Units() const noexcept { return {Data(), static_cast<std::size_t>(m_length)}; }

    /// Compares unit by unit. Returns nonzero for true. Narrow text is converted first; null counts as empty.
    /// @{
    int operator==(const ZFXUnicodeString& other) const noexcept;
    int operator!=(const ZFXUnicodeString& other) const noexcept { return !(*this == other); }
    int operator==(const char* text) const noexcept;
    int operator!=(const char* text) const noexcept { return !(*this == text); }
    /// @}
    /// Compares a narrow text on the left by content. Without these two operators, C++17 would convert the string to
    /// const char* and compare addresses.
    /// @{
    friend int operator==(const char* text, const ZFXUnicodeString& string) noexcept { return string == text; }
    friend int operator!=(const char* text, const ZFXUnicodeString& string) noexcept { return string != text; }
    /// @}

    /// Strings have no order and no truth value. The conversion to const char* would compare addresses, and every
    /// string would be true. Compare Units() to sort strings; call IsNull() to test for an empty one.
    /// @{
    friend bool operator<(const ZFXUnicodeString&, const ZFXUnicodeString&) = delete;
    friend bool operator<=(const ZFXUnicodeString&, const ZFXUnicodeString&) = delete;
    friend bool operator>(const ZFXUnicodeString&, const ZFXUnicodeString&) = delete;
    friend bool operator>=(const ZFXUnicodeString&, const ZFXUnicodeString&) = delete;
#ifdef __cpp_impl_three_way_comparison
    friend bool operator<=>(const ZFXUnicodeString&, const ZFXUnicodeString&) = delete;
#endif
    explicit operator bool() const = delete;
    /// @}

    /// Compares with `other`. Letter case is that of Unicode simple case folding, independent of the process locale.
    /// Returns 2 if the texts are identical, 1 if they are equal apart from letter case, 0 if they differ.
    [[nodiscard]] int Compare(const ZFXUnicodeString& other) const noexcept {
        if (m_length != other.m_length)
            return 0; // folding does not change the length
        if (m_length == 0)
            return 2;
        const char16_t* left = Data();
        const char16_t* right = other.Data();
        // Most pairs of names differ at their first unit, by more than the bit that separates ASCII letters by case.
        if ((left[0] | right[0]) < 0x80 && ((left[0] ^ right[0]) & ~0x20) != 0)
            return 0;
        return CompareUnits(left, right, m_length);
    }

    /// Returns a hash that ignores letter case: it is equal for two texts for which Compare returns 1 or 2.
    [[nodiscard]] std::size_t HashIgnoringCase() const noexcept;

    /// Returns the `length` code units from `start` on.
    [[nodiscard]] ZFXUnicodeString SubString(int start, int length) const;
    /// Returns the position of the first (SearchForward) or last (SearchBackward) occurrence of `sub` at or after
    /// `start`, or -1 if there is none. An empty `sub` is found at `start` in a forward search, at the end in a
    /// backward search.
    [[nodiscard]] int SearchSubString(const ZFXUnicodeString& sub, int start, ZFXSearchMode mode) const noexcept;
    /// Returns the code unit at position i, or U+0000 outside the text.
    [[nodiscard]] ZFXUnicodeChar operator[](std::size_t i) const noexcept {
        return ZFXUnicodeChar::FromUnit(i < static_cast<std::size_t>(m_length) ? Data()[i] : char16_t{0});
    }

    /// Returns the text as zero-terminated UTF-8, valid until the string is changed or destroyed. A U+0000 in the text
    /// ends it early. [borrowed]
    /// @{
    const char* ConvertToChar() const;
    operator const char*() const { return ConvertToChar(); }
    /// @}
    /// Parses the decimal integer at the start of the text: ASCII white space, one optional sign, digits. The rest is
    /// ignored. Sets *n and returns 1. Returns 0, with *n unchanged, in these cases:
    /// - the text starts with no number,
    /// - the number does not fit an int,
    /// - `format` is not "%d",
    /// - `n` is null.
    int ConvertToNum(int* n, const char* format) const noexcept;

    /// Returns the text without the spaces U+0020 at the places that `mode` selects.
    [[nodiscard]] ZFXUnicodeString Strip(ZFXStripMode mode) const { return Strip(mode, ' '); }
    /// Returns the text without `c` at the places that `mode` selects: all of it at the start, at the end, at both, or
    /// everywhere.
    [[nodiscard]] ZFXUnicodeString Strip(ZFXStripMode mode, const ZFXUnicodeChar& c) const;
    /// Returns this text followed by `other`.
    [[nodiscard]] ZFXUnicodeString operator+(const ZFXUnicodeString& other) const;

    /// Appends `other`. Returns this string.
    ZFXUnicodeString& Append(const ZFXUnicodeString& other);
    /// Replaces every occurrence of `old` by `text`, from left to right. Inserted text is not searched. Does nothing if
    /// `old` is empty.
    void ReplaceAll(const ZFXUnicodeString& old, const ZFXUnicodeString& text);
    /// Replaces the first occurrence of `old` by `text`. Returns 1, or 0 if there is none or `old` is empty.
    int ReplaceSubString(const ZFXUnicodeString& old, const ZFXUnicodeString& text);
    /// Replaces `count` code units from `start` on by `text`. Returns 1.
    int ReplaceSubString(int start, int count, const ZFXUnicodeString& text);
    /// Removes `count` code units from `start` on.
    void Remove(int start, int count);
    /// Shortens the text to its first n code units. Does nothing if n is negative or not below the length.
    void Resize(int n);
    /// Converts all letters by the Unicode simple case mappings. The length does not change.
    /// @{
    void ToUpper();
    void ToLower();
    /// @}

private:
    static constexpr int kInlineUnits = 32;
    union Storage {
        char16_t inlined[kInlineUnits];
        char16_t* heap;
    };

    bool IsInline() const noexcept { return m_capacity == kInlineUnits; }
    const char16_t* Data() const noexcept { return IsInline() ? m_storage.inlined : m_storage.heap; }
    char16_t* Data() noexcept { return IsInline() ? m_storage.inlined : m_storage.heap; }
    void CopyInline(const ZFXUnicodeString& other) noexcept {
        // Copying the whole array is faster than copying the part in use.
        std::memcpy(&m_storage, &other.m_storage, sizeof m_storage);
        m_length = other.m_length;
    }
    void TakeFrom(ZFXUnicodeString& other) noexcept;
    void Assign(std::u16string_view units);
    void Reserve(int units);
    void Replace(int start, int count, std::u16string_view text);
    void FreeHeap() noexcept;
    void DropNarrow() noexcept {
        if (m_narrow.load(std::memory_order_relaxed) != nullptr)
            FreeNarrow();
    }
    void FreeNarrow() noexcept;
    static int CompareUnits(const char16_t* left, const char16_t* right, int length) noexcept;

    Storage m_storage;
    std::int32_t m_length = 0;
    std::int32_t m_capacity = kInlineUnits;
    /// The UTF-8 form: created by the first ConvertToChar, deleted when the text changes.
    mutable std::atomic<char*> m_narrow{nullptr};
};
