// The comparison of two texts of one length, run for each pair of names in a scope: most names are short and ASCII.
// Compares eight units at a time; only a difference beyond ASCII is folded unit by unit.

#include "base/CompilerExtensions.h"
#include "text/CaseMapping.h"
#include "text/Surrogates.h"
#include "text/ZFXUnicodeString.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <cstring>

namespace {

constexpr int kBlock = 8;
constexpr std::uint16_t kCaseBit = 0x20;

#ifdef ZFX_VECTOR

/// Eight code units. The compiler translates each operation on them to one vector instruction.
using Block = std::uint16_t ZFX_VECTOR(16);

bool IsZero(const Block& block) noexcept {
    std::uint64_t halves[2];
    std::memcpy(halves, &block, sizeof halves);
    return (halves[0] | halves[1]) == 0;
}

/// Returns true if the blocks differ in the case of ASCII letters only.
bool EqualAscii(const Block& left, const Block& right) noexcept {
    const Block fromA = (left | kCaseBit) - 0x61; // the position in the alphabet
    const auto isLetter = reinterpret_cast<Block>(fromA < 26);
    return IsZero((left ^ right) & ~(isLetter & kCaseBit));
}

bool AreIdentical(const Block& left, const Block& right) noexcept { return IsZero(left ^ right); }
bool AreAscii(const Block& left, const Block& right) noexcept { return IsZero((left | right) & 0xFF80); }

#else

/// Eight code units.
struct Block {
    std::uint16_t units[kBlock];
};

/// Returns true if `predicate` is true for each pair of units. Has no branch, so that the compiler can use vectors.
template <class Predicate>
bool AllOf(const Block& left, const Block& right, Predicate predicate) noexcept {
    bool all = true;
    for (int i = 0; i < kBlock; ++i)
        all &= predicate(left.units[i], right.units[i]);
    return all;
}

/// Returns true if the blocks differ in the case of ASCII letters only.
bool EqualAscii(const Block& left, const Block& right) noexcept {
    return AllOf(left, right, [](unsigned l, unsigned r) {
        const bool isLetter = (l | kCaseBit) - 0x61 < 26;
        return ((l ^ r) & ~(isLetter ? kCaseBit : 0U)) == 0;
    });
}

bool AreIdentical(const Block& left, const Block& right) noexcept {
    return AllOf(left, right, [](unsigned l, unsigned r) { return l == r; });
}
bool AreAscii(const Block& left, const Block& right) noexcept {
    return AllOf(left, right, [](unsigned l, unsigned r) { return (l | r) < 0x80; });
}

#endif

Block Load(const char16_t* units) noexcept {
    Block block;
    std::memcpy(&block, units, sizeof block);
    return block;
}

std::uint32_t FoldPair(const char16_t* pair) noexcept {
    return CaseMapping::kFold.OfPair(Surrogates::Decode(pair[0], pair[1]));
}

/// Returns true if each text has a surrogate pair that includes position i, and the pairs are equal apart from case.
ZFX_COLD bool EqualPairsAt(const char16_t* left, const char16_t* right, int i, int length) noexcept {
    const int start = Surrogates::IsLow(left[i]) ? i - 1 : i;
    return start >= 0 && start + 1 < length && Surrogates::IsPair(left[start], left[start + 1]) &&
           Surrogates::IsPair(right[start], right[start + 1]) && FoldPair(left + start) == FoldPair(right + start);
}

/// Compares from position `from` on, unit by unit, as Compare does. `identical` is false if a difference is already
/// known.
// Not inlined, so that CompareUnits saves fewer registers.
ZFX_NOINLINE int CompareFolded(const char16_t* left, const char16_t* right, int from, int length,
                               bool identical) noexcept {
    for (int i = from; i < length; ++i) {
        if (left[i] == right[i])
            continue;
        identical = false;
        const bool areHalves = Surrogates::IsHalf(left[i]) && Surrogates::IsHalf(right[i]);
        const bool equal = areHalves ? EqualPairsAt(left, right, i, length)
                                     : CaseMapping::kFold.OfUnit(left[i]) == CaseMapping::kFold.OfUnit(right[i]);
        if (!equal)
            return 0;
    }
    return identical ? 2 : 1;
}

} // namespace

int ZFXUnicodeString::CompareUnits(const char16_t* left, const char16_t* right, int length) noexcept {
    assert(length > 0);
    // For long identical texts memcmp is faster than a loop over blocks.
    if (length > 2 * kBlock && std::memcmp(left, right, static_cast<std::size_t>(length) * sizeof(char16_t)) == 0)
        return 2;
    if (length < kBlock)
        return CompareFolded(left, right, 0, length, true);
    bool identical = true;
    for (int next = 0; next < length; next += kBlock) {
        const int at = std::min(next, length - kBlock); // the last block can overlap the one before
        const Block l = Load(left + at);
        const Block r = Load(right + at);
        if (AreIdentical(l, r))
            continue;
        identical = false;
        if (EqualAscii(l, r))
            continue;
        return AreAscii(l, r) ? 0 : CompareFolded(left, right, at, length, false);
    }
    return identical ? 2 : 1;
}
