#include "text/CaseMapping.h"

#include "text/Surrogates.h"

#include <iterator>

namespace CaseMapping {
namespace {

#include "text/unicode/generated/CaseTables.inc"

constexpr Mapping kUpper{kUpperPageOf, kUpperPages, std::begin(kUpperRanges), std::end(kUpperRanges)};
constexpr Mapping kLower{kLowerPageOf, kLowerPages, std::begin(kLowerRanges), std::end(kLowerRanges)};

void Apply(const Mapping& mapping, char16_t* units, int length) noexcept {
    for (int i = 0; i < length; ++i) {
        if (i + 1 == length || !Surrogates::IsPair(units[i], units[i + 1])) {
            units[i] = mapping.OfUnit(units[i]);
            continue;
        }
        const std::uint32_t code = mapping.OfPair(Surrogates::Decode(units[i], units[i + 1]));
        units[i] = Surrogates::HighOf(code);
        units[++i] = Surrogates::LowOf(code);
    }
}

} // namespace

constinit const Mapping kFold{kFoldPageOf, kFoldPages, std::begin(kFoldRanges), std::end(kFoldRanges)};

std::size_t HashIgnoringCase(const char16_t* units, int length) noexcept {
    // FNV-1a over the folded characters.
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (int i = 0; i < length; ++i) {
        const bool isPair = i + 1 < length && Surrogates::IsPair(units[i], units[i + 1]);
        hash ^= isPair ? kFold.OfPair(Surrogates::Decode(units[i], units[i + 1])) : kFold.OfUnit(units[i]);
        hash *= 0x100000001B3U;
        i += isPair ? 1 : 0;
    }
    return static_cast<std::size_t>(hash);
}

void ToUpper(char16_t* units, int length) noexcept { Apply(kUpper, units, length); }
void ToLower(char16_t* units, int length) noexcept { Apply(kLower, units, length); }

} // namespace CaseMapping
