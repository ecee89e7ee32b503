#include "Benchmarks.h"
#include "Repeated.h"
#include "VirtualCall.h"
#include "text/ZFXUnicodeString.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <cstring>

namespace {

struct Pair {
    ZFXUnicodeString left;
    ZFXUnicodeString right;
};

Pair DifferingInCase(const char* text) {
    Pair pair{text, text};
    pair.right.ToUpper();
    return pair;
}

/// 72 units, the maximum length of a name.
constexpr const char* kLongName = "Pressure on the upper flange of the pump bracket while it is tightened-7";
constexpr const char* kShortName = "Pressure-pin";

Operation Compare(const Pair& pair) {
    return Repeated([pair] {
        const Pair* texts = &pair;
        benchmark::DoNotOptimize(texts);
        benchmark::DoNotOptimize(texts->left.Compare(texts->right));
    });
}

Operation CompareByIcu(const Pair& pair) {
    return Repeated([pair] {
        const std::u16string_view left = pair.left.Units();
        const std::u16string_view right = pair.right.Units();
        UErrorCode error = U_ZERO_ERROR;
        benchmark::DoNotOptimize(u_strCaseCompare(left.data(), static_cast<int32_t>(left.size()), right.data(),
                                                  static_cast<int32_t>(right.size()), U_FOLD_CASE_DEFAULT, &error));
    });
}

Operation CompareBytes(const Pair& pair) {
    return Repeated([pair] {
        const char16_t* left = pair.left.Units().data();
        const char16_t* right = pair.right.Units().data();
        std::size_t bytes = pair.left.Units().size() * sizeof(char16_t);
        benchmark::DoNotOptimize(left);
        benchmark::DoNotOptimize(bytes); // with a known length the compiler would replace the call
        benchmark::DoNotOptimize(std::memcmp(left, right, bytes));
    });
}

Operation CallVirtually() {
    return Repeated([object = &VirtualCall::Instance()]() mutable {
        benchmark::DoNotOptimize(object);
        benchmark::DoNotOptimize(object->Call(&object, object));
    });
}

void RegisterWithIcu(const std::string& name, const Pair& pair) {
    RegisterOperation(name, [pair] { return Compare(pair); });
    RegisterOperation(name + "/icu", [pair] { return CompareByIcu(pair); });
}

} // namespace

void RegisterCompareBenchmarks() {
    const Pair identical{kLongName, kLongName};
    const Pair lengths{"Pressure-1", "Pressure-10"};
    const Pair firstUnits{"Pressure-1", "Velocity-1"};
    RegisterWithIcu("Compare/folded72", DifferingInCase(kLongName));
    RegisterWithIcu("Compare/folded12", DifferingInCase(kShortName));
    RegisterWithIcu("Compare/identical72", identical);
    RegisterOperation("Compare/identical72/memcmp", [identical] { return CompareBytes(identical); });
    RegisterOperation("Compare/lengths", [lengths] { return Compare(lengths); });
    RegisterOperation("Compare/firstUnits", [firstUnits] { return Compare(firstUnits); });
    RegisterOperation("VirtualCall", CallVirtually);
}
