#pragma once

#include "base/ZFXPlatformExport.h"
#include "text/ZFXUnicodeChar.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// A text as a value: a sequence of UTF-16 code units of which every object owns its own.
///
/// Lengths and counts are in code units, positions count from 0. Up to 32 units are held in the object
/// itself, so that reading and copying a name of ordinary length allocates nothing. Constant operations
/// may run on several threads at a time, as may any operations on different objects.
///
/// Positions and counts that lie outside the text are cut to it; a negative count means "to the end". An
/// argument may be the string that is changed. Narrow text is UTF-8: a byte that belongs to no well-formed
/// character is read as U+FFFD, and half a surrogate pair is written as U+FFFD.
class ZFX_PLATFORM_EXPORT ZFXUnicodeString {
public:
    /// Which occurrence is looked for.
    enum ZFXSearchMode { SearchForward = 1, SearchBackward = 2 };
    /// Where a unit is taken away.
    enum ZFXStripMode { StripLeading = 1, StripTrailing = 2, StripBoth = 3, StripEverywhere = 4 };

    /// The empty string.
    ZFXUnicodeString() noexcept { m_storage.inlined[0] = 0; }
    /// A zero-terminated UTF-8 text; null gives the empty string.
    ZFXUnicodeString(const char* text);
    /// n times c.
    ZFXUnicodeString(const ZFXUnicodeChar& c, std::size_t n);
    /// The units, copied.
    explicit ZFXUnicodeString(std::u16string_view units) : ZFXUnicodeString() { Assign(units); }
    /// A text of its own.
    ZFXUnicodeString(const ZFXUnicodeString& other) : ZFXUnicodeString() {
        if (other.m_length <= kInlineUnits && other.IsInline())
            CopyInline(other);
        else
            Assign(other.Units());
    }
    /// Takes the text of `other`, which is empty afterwards.
    ZFXUnicodeString(ZFXUnicodeString&& other) noexcept { TakeFrom(other); }
    ~ZFXUnicodeString() {
        DropNarrow();
        if (!IsInline())
            FreeHeap();
    }

    /// As the copy.
    ZFXUnicodeString& operator=(const ZFXUnicodeString& other);
    /// As the move; moved to itself it stays.
    ZFXUnicodeString& operator=(ZFXUnicodeString&& other) noexcept;
    /// The text as the constructor reads it; may be its own narrow form.
    ZFXUnicodeString& operator=(const char* text);

    /// The text becomes n in decimal. The format is "%d"; any other leaves the text as it is.
    void BuildFromNum(int n, const char* format);
    /// The text becomes `count` code units read from `units`.
    void BuildFromUCChar(const unsigned short* units, int count);

    /// The length in units.
    int GetLengthInChar() const noexcept { return m_length; }
    /// Nonzero when the text is empty.
    int IsNull() const noexcept { return m_length == 0; }
    /// The code units, valid until the string changes.
    std::u16string_view Units() const noexcept { return {Data(), static_cast<std::size_t>(m_length)}; }

    /// Exact comparison, unit by unit; nonzero for true.
    int operator==(const ZFXUnicodeString& other) const noexcept;
    /// The opposite.
    int operator!=(const ZFXUnicodeString& other) const noexcept { return !(*this == other); }
    /// With the text as the constructor reads it.
    int operator==(const char* text) const noexcept;
    /// The opposite.
    int operator!=(const char* text) const noexcept { return !(*this == text); }
    /// Compare a narrow text on the left by content. Without these two operators, C++17 converts the string to
    /// const char* and compares addresses.
    /// @{
    friend int operator==(const char* text, const ZFXUnicodeString& string) noexcept { return string == text; }
    friend int operator!=(const char* text, const ZFXUnicodeString& string) noexcept { return string != text; }
    /// @}

    /// Strings have no order and no truth value: the conversion to const char* would order addresses, and every string
    /// would be true. Order strings by Units(); test for an empty one with IsNull().
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

    /// 2 when the texts are identical, 1 when they are equal apart from letter case (Unicode simple case
    /// folding), 0 otherwise.
    int Compare(const ZFXUnicodeString& other) const noexcept {
        if (m_length != other.m_length)
            return 0; // folding keeps the number of units
        if (m_length == 0)
            return 2;
        const char16_t* left = Data();
        const char16_t* right = other.Data();
        // Most pairs of names differ at their first unit, by more than the bit that separates ASCII letters by case.
        if ((left[0] | right[0]) < 0x80 && ((left[0] ^ right[0]) & ~0x20) != 0)
            return 0;
        return CompareUnits(left, right, m_length);
    }

    /// The `length` units from `start` on.
    ZFXUnicodeString SubString(int start, int length) const;
    /// The position of `sub` at or after `start` (forward: the first; backward: the last), or -1. The empty
    /// text is found at `start` when searching forward, at the end when searching backward.
    int SearchSubString(const ZFXUnicodeString& sub, int start, ZFXSearchMode mode) const noexcept;
    /// The unit at position i; U+0000 outside the text.
    ZFXUnicodeChar operator[](std::size_t i) const noexcept {
        return ZFXUnicodeChar::FromUnit(i < static_cast<std::size_t>(m_length) ? Data()[i] : char16_t{0});
    }

    /// The text in UTF-8, zero-terminated (a U+0000 within ends it for its readers); valid until the string is
    /// changed or destroyed.
    const char* ConvertToChar() const;
    /// As ConvertToChar.
    operator const char*() const { return ConvertToChar(); }
    /// Reads a leading decimal integer in the manner of "%d": ASCII white space, one sign, digits; what
    /// follows is ignored. Returns 1 and writes *n, or returns 0 and leaves *n when there is no number, when
    /// it does not fit an int, or when the format is not "%d".
    int ConvertToNum(int* n, const char* format) const noexcept;

    /// The text without the space U+0020.
    ZFXUnicodeString Strip(ZFXStripMode mode) const { return Strip(mode, ' '); }
    /// The text without `c`: without the run of it at an end or both, or wherever it stands.
    ZFXUnicodeString Strip(ZFXStripMode mode, const ZFXUnicodeChar& c) const;
    /// Both texts, this one first.
    ZFXUnicodeString operator+(const ZFXUnicodeString& other) const;

    /// Puts the other behind this text and returns this string.
    ZFXUnicodeString& Append(const ZFXUnicodeString& other);
    /// Replaces every occurrence from left to right; replaced text is not searched again. An empty `old`
    /// changes nothing.
    void ReplaceAll(const ZFXUnicodeString& old, const ZFXUnicodeString& text);
    /// Replaces the first occurrence and returns 1; returns 0 when there is none or `old` is empty.
    int ReplaceSubString(const ZFXUnicodeString& old, const ZFXUnicodeString& text);
    /// Replaces `count` units from `start` on; always 1.
    int ReplaceSubString(int start, int count, const ZFXUnicodeString& text);
    /// Takes `count` units from `start` on away.
    void Remove(int start, int count);
    /// Keeps the first n units; a longer or negative n changes nothing.
    void Resize(int n);
    /// Unicode simple case mappings, character by character: the length stays.
    void ToUpper();
    /// The same the other way.
    void ToLower();

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
        // The whole array in one go is cheaper than asking how much of it is in use.
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
    /// The UTF-8 form, made when it is first asked for; dropped when the text changes.
    mutable std::atomic<char*> m_narrow{nullptr};
};
