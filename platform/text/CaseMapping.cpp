#include "text/CaseMapping.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <span>

namespace CaseMapping {
namespace {

struct CaseRange {
    std::uint32_t first;
    std::uint32_t last;
    std::int32_t offset;
};

#include "text/unicode/generated/CaseTables.inc"

/// One of the three mappings: offsets for the characters of one unit, ranges for those of two.
struct Mapping {
    const std::uint8_t* pageOf;
    const std::uint16_t (*pages)[256];
    std::span<const CaseRange> ranges;

    char16_t OfUnit(char16_t unit) const noexcept {
        return static_cast<char16_t>(unit + pages[pageOf[unit >> 8]][unit & 0xFF]);
    }
    std::uint32_t OfPair(std::uint32_t code) const noexcept {
        const auto range = std::lower_bound(ranges.begin(), ranges.end(), code,
                                            [](const CaseRange& r, std::uint32_t c) { return r.last < c; });
        if (range == ranges.end() || code < range->first)
            return code;
        return static_cast<std::uint32_t>(static_cast<std::int64_t>(code) + range->offset);
    }
};

constexpr Mapping kFold{kFoldPageOf, kFoldPages, kFoldRanges};
constexpr Mapping kUpper{kUpperPageOf, kUpperPages, kUpperRanges};
constexpr Mapping kLower{kLowerPageOf, kLowerPages, kLowerRanges};

bool IsPair(const char16_t* units, int left) noexcept {
    return left > 1 && (units[0] & 0xFC00) == 0xD800 && (units[1] & 0xFC00) == 0xDC00;
}

std::uint32_t PairCode(const char16_t* units) noexcept {
    return 0x10000U + ((static_cast<std::uint32_t>(units[0]) & 0x3FFU) << 10) + (units[1] & 0x3FFU);
}

void Apply(const Mapping& mapping, char16_t* units, int length) noexcept {
    for (int i = 0; i < length; ++i) {
        if (!IsPair(units + i, length - i)) {
            units[i] = mapping.OfUnit(units[i]);
            continue;
        }
        const std::uint32_t code = mapping.OfPair(PairCode(units + i)) - 0x10000U;
        units[i] = static_cast<char16_t>(0xD800U + (code >> 10));
        units[++i] = static_cast<char16_t>(0xDC00U + (code & 0x3FFU));
    }
}

/// Eight units side by side: compilers make one step of a vector unit of each operation on them.
using Block = std::uint16_t __attribute__((vector_size(16)));
constexpr int kBlock = 8;
constexpr std::uint16_t kCaseBit = 0x20;

Block Load(const char16_t* units) noexcept {
    Block block;
    std::memcpy(&block, units, sizeof block);
    return block;
}

bool IsZero(const Block& block) noexcept {
    std::uint64_t halves[2];
    std::memcpy(halves, &block, sizeof halves);
    return (halves[0] | halves[1]) == 0;
}

/// Whether two blocks part at nothing but the case of ASCII letters.
bool EqualAscii(const Block& left, const Block& right) noexcept {
    const Block fromA = (left | kCaseBit) - 0x61; // the place in the alphabet
    const auto isLetter = reinterpret_cast<Block>(fromA < 26);
    return IsZero((left ^ right) & ~(isLetter & kCaseBit));
}

bool AreAscii(const Block& left, const Block& right) noexcept { return IsZero((left | right) & 0xFF80); }

} // namespace

int Compare(const char16_t* left, const char16_t* right, int length) noexcept {
    // A long text that is identical is told fastest by the standard library.
    if (length > 2 * kBlock && std::memcmp(left, right, static_cast<std::size_t>(length) * sizeof(char16_t)) == 0)
        return 2;
    bool identical = true;
    int equal = 0;
    while (equal < length && length >= kBlock) {
        const int at = std::min(equal, length - kBlock); // the last block may begin in the one before
        const Block l = Load(left + at);
        const Block r = Load(right + at);
        if (!IsZero(l ^ r)) {
            identical = false;
            if (!EqualAscii(l, r)) {
                if (AreAscii(l, r))
                    return 0;
                break;
            }
        }
        equal = at + kBlock;
    }
    for (int i = equal; i < length; ++i) {
        // Two halves of equal pairs compare equal one by one, so only a difference needs a look at the pair.
        if (left[i] == right[i])
            continue;
        identical = false;
        const int back = i > 0 && IsPair(left + i - 1, 2) && IsPair(right + i - 1, 2) ? 1 : 0;
        const char16_t* l = left + i - back;
        const char16_t* r = right + i - back;
        const int rest = length - i + back;
        if (IsPair(l, rest) && IsPair(r, rest)) {
            if (kFold.OfPair(PairCode(l)) != kFold.OfPair(PairCode(r)))
                return 0;
            i += 1 - back;
        } else if (kFold.OfUnit(left[i]) != kFold.OfUnit(right[i])) {
            return 0;
        }
    }
    return identical ? 2 : 1;
}

void ToUpper(char16_t* units, int length) noexcept { Apply(kUpper, units, length); }
void ToLower(char16_t* units, int length) noexcept { Apply(kLower, units, length); }

} // namespace CaseMapping
