#include "text/DecimalText.h"

#include <charconv>
#include <cstdint>
#include <limits>

namespace DecimalText {

std::optional<int> Read(std::u16string_view text) noexcept {
    std::size_t at = 0;
    while (at < text.size() && (text[at] == u' ' || (text[at] >= u'\t' && text[at] <= u'\r')))
        ++at;
    const bool negative = at < text.size() && text[at] == u'-';
    if (negative || (at < text.size() && text[at] == u'+'))
        ++at;
    // The magnitude of the least int is one more than that of the largest.
    const std::int64_t limit = std::int64_t{std::numeric_limits<int>::max()} + (negative ? 1 : 0);
    const std::size_t firstDigit = at;
    std::int64_t value = 0;
    for (; at < text.size() && text[at] >= u'0' && text[at] <= u'9'; ++at) {
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
