#include "text/DecimalText.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>

namespace DecimalText {

namespace {

bool IsDigit(char16_t unit) noexcept { return unit >= u'0' && unit <= u'9'; }

constexpr std::size_t kSafeDigits = 9; // any number of nine digits fits an int

} // namespace

std::optional<int> Read(std::u16string_view text) noexcept {
    std::size_t at = 0;
    // Most texts consist of a few digits.
    int small = 0;
    for (const std::size_t end = std::min(text.size(), kSafeDigits); at < end && IsDigit(text[at]); ++at)
        small = small * 10 + (text[at] - u'0');
    if (at > 0 && (at == text.size() || !IsDigit(text[at])))
        return small;
    at = 0;
    while (at < text.size() && (text[at] == u' ' || (text[at] >= u'\t' && text[at] <= u'\r')))
        ++at;
    const bool negative = at < text.size() && text[at] == u'-';
    if (negative || (at < text.size() && text[at] == u'+'))
        ++at;
    // The magnitude of the smallest int is one more than that of the largest.
    const std::int64_t limit = std::int64_t{std::numeric_limits<int>::max()} + (negative ? 1 : 0);
    const std::size_t firstDigit = at;
    std::int64_t value = 0;
    for (; at < text.size() && IsDigit(text[at]); ++at) {
        value = value * 10 + (text[at] - u'0');
        if (value > limit)
            return std::nullopt;
    }
    if (at == firstDigit)
        return std::nullopt;
    return static_cast<int>(negative ? -value : value);
}

int Write(int n, char16_t* units) noexcept {
    char digits[kMaxUnits];
    const char* end = std::to_chars(digits, digits + kMaxUnits, n).ptr;
    int count = 0;
    for (const char* digit = digits; digit != end; ++digit)
        units[count++] = static_cast<char16_t>(*digit);
    return count;
}

} // namespace DecimalText
