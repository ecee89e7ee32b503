#pragma once

#include <algorithm>
#include <cstdint>

/// Unicode simple case mappings of a UTF-16 text, unit by unit or pair by pair. None changes a length.
namespace CaseMapping {

struct CaseRange {
    std::uint32_t first;
    std::uint32_t last;
    std::int32_t offset;
};

/// One of the three mappings: offsets for the characters of one unit, ranges for those of two.
struct Mapping {
    const std::uint8_t* pageOf;
    const std::uint16_t (*pages)[256];
    const CaseRange* ranges;
    const CaseRange* rangesEnd;

    char16_t OfUnit(char16_t unit) const noexcept {
        return static_cast<char16_t>(unit + pages[pageOf[unit >> 8]][unit & 0xFF]);
    }
    std::uint32_t OfPair(std::uint32_t code) const noexcept {
        const auto* range =
            std::lower_bound(ranges, rangesEnd, code, [](const CaseRange& r, std::uint32_t c) { return r.last < c; });
        if (range == rangesEnd || code < range->first)
            return code;
        return static_cast<std::uint32_t>(static_cast<std::int64_t>(code) + range->offset);
    }
};

extern const Mapping kFold __attribute__((visibility("hidden")));

void ToUpper(char16_t* units, int length) noexcept;
void ToLower(char16_t* units, int length) noexcept;

} // namespace CaseMapping
