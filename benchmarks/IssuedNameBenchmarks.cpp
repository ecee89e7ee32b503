#include "Benchmarks.h"
#include "CpuTime.h"
#include "QVRGenI18NUtils.h"
#include "Results.h"
#include "Scopes.h"

#include <vector>

namespace {

constexpr int kBatch = 100; // names that are issued per measurement

/// Clears the list of issued names and appends n different names.
void FillIssuedNames(int n) {
    QVRGenI18NUtils* names = QVRGenI18NUtils::Instance();
    names->ResetAllLists();
    for (int i = 1; i <= n; ++i)
        names->PushNameToList(Scopes::NumberedName("QVRGeneric", i));
}

/// Returns ten of the n issued names, evenly spread. The number is small because a deck has features of few types.
std::vector<ZFXUnicodeString> TenOf(int n) {
    std::vector<ZFXUnicodeString> names;
    for (int i = 1; i <= 10; ++i)
        names.push_back(Scopes::NumberedName("QVRGeneric", i * (n / 10)));
    return names;
}

/// Issues kBatch names: looks up how often a name was issued, then records it.
void IssueNames(const std::vector<ZFXUnicodeString>& names) {
    QVRGenI18NUtils* issued = QVRGenI18NUtils::Instance();
    for (int i = 0; i < kBatch; ++i) {
        const ZFXUnicodeString& name = names[static_cast<std::size_t>(i) % names.size()];
        int count = 0;
        benchmark::DoNotOptimize(issued->FindNameAndNextID(name, count));
        issued->PushNameToList(name);
    }
}

void IssueAmong(benchmark::State& state, int n) {
    const std::vector<ZFXUnicodeString> names = TenOf(n);
    FillIssuedNames(n);
    for (auto _ : state) {
        if (n < kBatch * kBatch)
            FillIssuedNames(n); // removes the names of the last batch; for larger n they do not matter
        state.SetIterationTime(CpuSecondsOf([&] { IssueNames(names); }));
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
}

} // namespace

void RegisterIssuedNameBenchmarks() {
    for (const int n : {100, Scopes::kLargest})
        benchmark::RegisterBenchmark(BenchmarkName("IssueName", n).c_str(),
                                     [=](benchmark::State& state) { IssueAmong(state, n); })
            ->UseManualTime()
            ->Iterations(10);
}
