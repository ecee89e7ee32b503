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

void ToUpper(char16_t* units, int length) noexcept { Apply(kUpper, units, length); }
void ToLower(char16_t* units, int length) noexcept { Apply(kLower, units, length); }

} // namespace CaseMapping
