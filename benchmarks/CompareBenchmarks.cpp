#include "Benchmarks.h"
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

void Compare(benchmark::State& state, const Pair& pair) {
    const Pair* texts = &pair;
    for (auto _ : state) {
        benchmark::DoNotOptimize(texts);
        benchmark::DoNotOptimize(texts->left.Compare(texts->right));
    }
}

void CompareByIcu(benchmark::State& state, const Pair& pair) {
    const std::u16string_view left = pair.left.Units();
    const std::u16string_view right = pair.right.Units();
    for (auto _ : state) {
        UErrorCode error = U_ZERO_ERROR;
        benchmark::DoNotOptimize(u_strCaseCompare(left.data(), static_cast<int32_t>(left.size()), right.data(),
                                                  static_cast<int32_t>(right.size()), U_FOLD_CASE_DEFAULT, &error));
    }
}

void CompareBytes(benchmark::State& state, const Pair& pair) {
    const char16_t* left = pair.left.Units().data();
    const char16_t* right = pair.right.Units().data();
    std::size_t bytes = pair.left.Units().size() * sizeof(char16_t);
    for (auto _ : state) {
        benchmark::DoNotOptimize(left);
        benchmark::DoNotOptimize(bytes); // with a known length the compiler would replace the call
        benchmark::DoNotOptimize(std::memcmp(left, right, bytes));
    }
}

void CallVirtually(benchmark::State& state) {
    const VirtualCall* object = &VirtualCall::Instance();
    for (auto _ : state) {
        benchmark::DoNotOptimize(object);
        benchmark::DoNotOptimize(object->Call(&state, object));
    }
}

void RegisterWithIcu(const std::string& name, const Pair& pair) {
    benchmark::RegisterBenchmark(name.c_str(), [pair](benchmark::State& state) { Compare(state, pair); });
    benchmark::RegisterBenchmark((name + "/icu").c_str(),
                                 [pair](benchmark::State& state) { CompareByIcu(state, pair); });
}

} // namespace

void RegisterCompareBenchmarks() {
    const Pair identical{kLongName, kLongName};
    const Pair lengths{"Pressure-1", "Pressure-10"};
    const Pair firstUnits{"Pressure-1", "Velocity-1"};
    RegisterWithIcu("Compare/folded72", DifferingInCase(kLongName));
    RegisterWithIcu("Compare/folded12", DifferingInCase(kShortName));
    RegisterWithIcu("Compare/identical72", identical);
    benchmark::RegisterBenchmark("Compare/identical72/memcmp",
                                 [identical](benchmark::State& state) { CompareBytes(state, identical); });
    benchmark::RegisterBenchmark("Compare/lengths", [lengths](benchmark::State& state) { Compare(state, lengths); });
    benchmark::RegisterBenchmark("Compare/firstUnits",
                                 [firstUnits](benchmark::State& state) { Compare(state, firstUnits); });
    benchmark::RegisterBenchmark("VirtualCall", CallVirtually);
}
