#include "Benchmarks.h"
#include "QVRGenI18NUtils.h"
#include "Results.h"
#include "Scopes.h"
#include "SetUp.h"

#include <vector>

namespace {

constexpr int kBatch = 100; // hand-outs that are timed together

void UseNames(int n) {
    QVRGenI18NUtils* names = QVRGenI18NUtils::Instance();
    names->ResetAllLists();
    for (int i = 1; i <= n; ++i)
        names->PushNameToList(Scopes::NumberedName("QVRGeneric", i));
}

/// Ten of the names used, evenly spread: a deck has many features, but of few types.
std::vector<ZFXUnicodeString> TenOf(int n) {
    std::vector<ZFXUnicodeString> names;
    for (int i = 1; i <= 10; ++i)
        names.push_back(Scopes::NumberedName("QVRGeneric", i * (n / 10)));
    return names;
}

void HandOut(const std::vector<ZFXUnicodeString>& names) {
    QVRGenI18NUtils* handedOut = QVRGenI18NUtils::Instance();
    for (int i = 0; i < kBatch; ++i) {
        const ZFXUnicodeString& name = names[static_cast<std::size_t>(i) % names.size()];
        int count = 0;
        benchmark::DoNotOptimize(handedOut->FindNameAndNextID(name, count));
        handedOut->PushNameToList(name);
    }
}

void HandOutAmong(benchmark::State& state, int n) {
    const std::vector<ZFXUnicodeString> names = TenOf(n);
    UseNames(n);
    for (auto _ : state) {
        if (n < kBatch * kBatch)
            UseNames(n); // else what the batches add changes little
        state.SetIterationTime(SecondsOf([&] { HandOut(names); }));
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
}

} // namespace

void RegisterHandOutBenchmarks() {
    for (const int n : {100, Scopes::kLargest})
        benchmark::RegisterBenchmark(Sized("HandOut", n).c_str(),
                                     [=](benchmark::State& state) { HandOutAmong(state, n); })
            ->UseManualTime()
            ->Iterations(10);
}
