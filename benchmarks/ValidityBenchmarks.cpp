#include "Benchmarks.h"
#include "QVRNameUtil.h"
#include "Repeated.h"
#include "base/CompilerExtensions.h"

#include <array>
#include <vector>

namespace {

/// Returns legal names of 8, 16, ..., 72 units.
std::vector<ZFXUnicodeString> LegalNames() {
    const ZFXUnicodeString longest("Pressure on the upper flange of the pump bracket while it is tightened-7");
    std::vector<ZFXUnicodeString> names;
    for (int length = 8; length <= 72; length += 8)
        names.push_back(longest.SubString(0, length));
    return names;
}

std::array<bool, 256> IllegalUnits() {
    std::array<bool, 256> isIllegal{};
    for (const char unit : {'"', '.', '\\'})
        isIllegal[static_cast<unsigned char>(unit)] = true;
    return isIllegal;
}

/// The reference: one table look-up per unit. Not inlined, because IsNameValid is a call too.
ZFX_NOINLINE bool HasIllegalUnit(std::u16string_view units, const std::array<bool, 256>& isIllegal) {
    for (const char16_t unit : units)
        if (unit < isIllegal.size() && isIllegal[unit])
            return true;
    return false;
}

Operation Validate() {
    return Repeated([names = LegalNames()]() mutable {
        for (ZFXUnicodeString& name : names)
            benchmark::DoNotOptimize(QVRNameUtil::IsNameValid(name, 1));
    });
}

Operation LookUp() {
    return Repeated([names = LegalNames(), isIllegal = IllegalUnits()] {
        for (const ZFXUnicodeString& name : names)
            benchmark::DoNotOptimize(HasIllegalUnit(name.Units(), isIllegal));
    });
}

} // namespace

void RegisterValidityBenchmarks() {
    RegisterOperation("IsNameValid", Validate);
    RegisterOperation("IsNameValid/table", LookUp);
}
