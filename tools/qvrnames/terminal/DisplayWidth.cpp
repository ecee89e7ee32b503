#include "terminal/DisplayWidth.h"

#include <algorithm>
#include <cassert>
#include <cstdio>
#include <iterator>

namespace {

/// A range of characters; both ends are included.
struct WidthRange {
    char32_t first;
    char32_t last;
};
#include "terminal/unicode/generated/WidthRanges.inc"

template <std::size_t count>
bool Contains(const WidthRange (&ranges)[count], char32_t code) {
    const auto* const range = std::lower_bound(std::begin(ranges), std::end(ranges), code,
                                               [](const WidthRange& at, char32_t c) { return at.last < c; });
    return range != std::end(ranges) && range->first <= code;
}

std::size_t DisplayWidth(char32_t code) {
    if (code < 0x300)
        return 1;
    return Contains(kZeroWidthRanges, code) ? 0 : Contains(kWideRanges, code) ? 2 : 1;
}

std::size_t SequenceLength(unsigned char lead) { return lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4; }

/// Returns true for characters that break a line, control a terminal or change the direction of the following text, and
/// for U+FFFE and U+FFFF, which XML cannot contain.
bool IsUnprintable(char32_t code) {
    return code < 0x20 || (code >= 0x7F && code <= 0x9F) || (code >= 0x2028 && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069) || code == 0xFFFE || code == 0xFFFF;
}

} // namespace

std::pair<char32_t, std::size_t> FirstCharacter(std::string_view text) {
    assert(!text.empty());
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t bytes = std::min(SequenceLength(lead), text.size());
    char32_t code = bytes == 1 ? lead : lead & (0xFFU >> (bytes + 1));
    for (std::size_t i = 1; i < bytes; ++i)
        code = (code << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
    return {code, bytes};
}

std::size_t DisplayWidth(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) {
        const auto [code, bytes] = FirstCharacter(text);
        text.remove_prefix(bytes);
        width += DisplayWidth(code);
    }
    return width;
}

std::size_t BytesThatFit(std::string_view text, std::size_t width) {
    std::size_t taken = 0;
    std::size_t used = 0;
    while (taken < text.size()) {
        const auto [code, bytes] = FirstCharacter(text.substr(taken));
        used += DisplayWidth(code);
        if (used > width && taken > 0)
            break;
        taken += bytes;
    }
    return taken;
}

std::string Printable(std::string_view text) {
    std::string printable;
    while (!text.empty()) {
        const auto [code, bytes] = FirstCharacter(text);
        if (!IsUnprintable(code)) {
            printable += text.substr(0, bytes);
        } else {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(code) & 0xFFFFU);
            printable += escape;
        }
        text.remove_prefix(bytes);
    }
    return printable;
}
