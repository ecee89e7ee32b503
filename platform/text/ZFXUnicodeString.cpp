#include "text/ZFXUnicodeString.h"

#include "text/CaseMapping.h"
#include "text/DecimalText.h"
#include "text/Utf8.h"

#include <algorithm>
#include <cassert>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <utility>

namespace {

bool IsDecimalFormat(const char* format) noexcept { return format != nullptr && std::string_view(format) == "%d"; }

std::size_t Size(int n) noexcept {
    assert(n >= 0);
    return static_cast<std::size_t>(n);
}

} // namespace

ZFXUnicodeString::ZFXUnicodeString(const char* text) : ZFXUnicodeString() {
    if (text == nullptr)
        return;
    const std::string_view narrow(text);
    const auto units = static_cast<int>(Utf8::ToUtf16(narrow, nullptr));
    Reserve(units);
    Utf8::ToUtf16(narrow, Data());
    m_length = units;
}

ZFXUnicodeString::ZFXUnicodeString(const ZFXUnicodeChar& c, std::size_t n) : ZFXUnicodeString() {
    const auto count = static_cast<int>(std::min(n, Size(std::numeric_limits<int>::max())));
    Reserve(count);
    std::fill_n(Data(), count, char16_t{c.ConvertToUC2Bytes()});
    m_length = count;
}

ZFXUnicodeString& ZFXUnicodeString::operator=(const ZFXUnicodeString& other) {
    if (this == &other)
        return *this;
    if (IsInline() && other.IsInline()) {
        DropNarrow();
        CopyInline(other);
    } else {
        Assign(other.Units());
    }
    return *this;
}

ZFXUnicodeString& ZFXUnicodeString::operator=(ZFXUnicodeString&& other) noexcept {
    if (this == &other)
        return *this;
    DropNarrow();
    if (!IsInline())
        FreeHeap();
    TakeFrom(other);
    return *this;
}

ZFXUnicodeString& ZFXUnicodeString::operator=(const char* text) {
    return *this = ZFXUnicodeString(text); // copies first: the text can be this string's own narrow form
}

/// Moves the text of `other`, which is empty afterwards. This string must own no memory: what it has is overwritten.
void ZFXUnicodeString::TakeFrom(ZFXUnicodeString& other) noexcept {
    std::memcpy(&m_storage, &other.m_storage, sizeof m_storage);
    m_length = std::exchange(other.m_length, 0);
    m_capacity = std::exchange(other.m_capacity, kInlineUnits);
    m_narrow.store(other.m_narrow.exchange(nullptr, std::memory_order_relaxed), std::memory_order_relaxed);
}

void ZFXUnicodeString::FreeHeap() noexcept { delete[] m_storage.heap; }

void ZFXUnicodeString::FreeNarrow() noexcept { delete[] m_narrow.exchange(nullptr, std::memory_order_relaxed); }

/// Makes room for a number of code units. The text does not change.
void ZFXUnicodeString::Reserve(int units) {
    if (units <= m_capacity)
        return;
    // Grows by half, so that building a text piece by piece takes linear time.
    const int grown = m_capacity > std::numeric_limits<int>::max() / 2 ? units : m_capacity + m_capacity / 2;
    const int capacity = std::max(units, grown);
    auto* heap = new char16_t[Size(capacity)];
    std::copy_n(Data(), m_length, heap);
    if (!IsInline())
        FreeHeap();
    m_storage.heap = heap;
    m_capacity = capacity;
}

/// Sets the text to `units`, which must not be part of this string.
void ZFXUnicodeString::Assign(std::u16string_view units) {
    assert(units.empty() || units.data() != Data());
    assert(units.size() <= Size(std::numeric_limits<int>::max()));
    DropNarrow();
    m_length = 0; // Reserve then copies nothing
    Reserve(static_cast<int>(units.size()));
    std::copy(units.begin(), units.end(), Data());
    m_length = static_cast<int>(units.size());
}

/// Replaces a range of the text by `text`, which can be part of this string.
void ZFXUnicodeString::Replace(int start, int count, std::u16string_view text) {
    assert(start >= 0);
    assert(count >= 0);
    assert(start <= m_length - count);
    DropNarrow();
    const std::less<> before;
    const bool own = !before(text.data(), Data()) && before(text.data(), Data() + m_length);
    if (own && !text.empty()) {
        const std::u16string copy(text);
        Replace(start, count, copy);
        return;
    }
    const auto added = static_cast<int>(text.size());
    Reserve(m_length - count + added);
    char16_t* at = Data() + start;
    std::memmove(at + added, at + count, Size(m_length - start - count) * sizeof(char16_t));
    std::copy(text.begin(), text.end(), at);
    m_length += added - count;
}

void ZFXUnicodeString::BuildFromNum(int n, const char* format) {
    if (!IsDecimalFormat(format))
        return;
    char16_t units[DecimalText::kMaxUnits];
    Assign({units, Size(DecimalText::Write(n, units))});
}

void ZFXUnicodeString::BuildFromUCChar(const unsigned short* units, int count) {
    static_assert(sizeof(unsigned short) == sizeof(char16_t));
    std::u16string copy;
    if (units != nullptr && count > 0)
        copy.assign(units, units + count);
    Assign(copy);
}

int ZFXUnicodeString::operator==(const ZFXUnicodeString& other) const noexcept {
    return m_length == other.m_length && std::memcmp(Data(), other.Data(), Size(m_length) * sizeof(char16_t)) == 0;
}

int ZFXUnicodeString::operator==(const char* text) const noexcept {
    std::string_view rest(text == nullptr ? "" : text);
    const std::u16string_view units = Units();
    std::size_t at = 0;
    while (!rest.empty()) {
        const Utf8::Decoded c = Utf8::First(rest);
        char16_t pair[2];
        const std::size_t count = Utf8::ToUtf16(rest.substr(0, Size(c.bytes)), pair);
        if (units.substr(at, count) != std::u16string_view(pair, count))
            return 0;
        at += count;
        rest.remove_prefix(Size(c.bytes));
    }
    return at == units.size();
}

std::size_t ZFXUnicodeString::HashIgnoringCase() const noexcept {
    return CaseMapping::HashIgnoringCase(Data(), m_length);
}

ZFXUnicodeString ZFXUnicodeString::SubString(int start, int length) const {
    const int from = std::clamp(start, 0, m_length);
    const int most = m_length - from;
    const int count = length < 0 ? most : std::min(length, most);
    return ZFXUnicodeString(Units().substr(Size(from), Size(count)));
}

int ZFXUnicodeString::SearchSubString(const ZFXUnicodeString& sub, int start, ZFXSearchMode mode) const noexcept {
    const std::size_t from = Size(std::clamp(start, 0, m_length));
    const std::size_t found = mode == SearchBackward ? Units().rfind(sub.Units()) : Units().find(sub.Units(), from);
    return found == std::u16string_view::npos || found < from ? -1 : static_cast<int>(found);
}

const char* ZFXUnicodeString::ConvertToChar() const {
    if (const char* known = m_narrow.load(std::memory_order_acquire))
        return known;
    const std::size_t bytes = Utf8::FromUtf16(Units(), nullptr);
    auto* made = new char[bytes + 1];
    Utf8::FromUtf16(Units(), made);
    made[bytes] = '\0';
    // Two threads can convert at the same time: the first result is kept, the second is deleted.
    char* other = nullptr;
    if (m_narrow.compare_exchange_strong(other, made, std::memory_order_acq_rel))
        return made;
    delete[] made;
    return other;
}

int ZFXUnicodeString::ConvertToNum(int* n, const char* format) const noexcept {
    if (n == nullptr || !IsDecimalFormat(format))
        return 0;
    const std::optional<int> read = DecimalText::Read(Units());
    if (!read)
        return 0;
    *n = *read;
    return 1;
}

ZFXUnicodeString ZFXUnicodeString::Strip(ZFXStripMode mode, const ZFXUnicodeChar& c) const {
    const char16_t unit = c.ConvertToUC2Bytes();
    std::u16string_view rest = Units();
    if (mode == StripEverywhere) {
        ZFXUnicodeString result(rest);
        char16_t* end = std::remove(result.Data(), result.Data() + result.m_length, unit);
        result.m_length = static_cast<int>(end - result.Data());
        return result;
    }
    if (mode == StripLeading || mode == StripBoth)
        rest.remove_prefix(std::min(rest.find_first_not_of(unit), rest.size()));
    if (mode == StripTrailing || mode == StripBoth)
        rest = rest.substr(0, rest.find_last_not_of(unit) + 1);
    return ZFXUnicodeString(rest);
}

ZFXUnicodeString ZFXUnicodeString::operator+(const ZFXUnicodeString& other) const {
    ZFXUnicodeString result(*this);
    result.Append(other);
    return result;
}

ZFXUnicodeString& ZFXUnicodeString::Append(const ZFXUnicodeString& other) {
    Replace(m_length, 0, other.Units());
    return *this;
}

void ZFXUnicodeString::ReplaceAll(const ZFXUnicodeString& old, const ZFXUnicodeString& text) {
    if (old.IsNull() || SearchSubString(old, 0, SearchForward) == -1)
        return;
    std::u16string result;
    std::u16string_view rest = Units();
    for (std::size_t found; (found = rest.find(old.Units())) != std::u16string_view::npos;) {
        result.append(rest.substr(0, found)).append(text.Units());
        rest.remove_prefix(found + old.Units().size());
    }
    result.append(rest);
    Assign(result);
}

int ZFXUnicodeString::ReplaceSubString(const ZFXUnicodeString& old, const ZFXUnicodeString& text) {
    const int found = old.IsNull() ? -1 : SearchSubString(old, 0, SearchForward);
    if (found < 0)
        return 0;
    Replace(found, old.m_length, text.Units());
    return 1;
}

int ZFXUnicodeString::ReplaceSubString(int start, int count, const ZFXUnicodeString& text) {
    const int from = std::clamp(start, 0, m_length);
    const int most = m_length - from;
    Replace(from, count < 0 ? most : std::min(count, most), text.Units());
    return 1;
}

void ZFXUnicodeString::Remove(int start, int count) { ReplaceSubString(start, count, ZFXUnicodeString()); }

void ZFXUnicodeString::Resize(int n) {
    if (n >= 0 && n < m_length)
        Replace(n, m_length - n, {});
}

void ZFXUnicodeString::ToUpper() {
    DropNarrow();
    CaseMapping::ToUpper(Data(), m_length);
}

void ZFXUnicodeString::ToLower() {
    DropNarrow();
    CaseMapping::ToLower(Data(), m_length);
}
