#include "Benchmarks.h"
#include "CpuTime.h"
#include "QVRNameUtil.h"
#include "Results.h"

namespace {

void ProposeMany(benchmark::State& state, int count) {
    const ZFXListValZFXBaseUnknown_var emptyScope;
    ZFXUnicodeString base("Pressure-");
    {
        ZFXListValZFXUnicodeString first; // requests the memory from the system
        static_cast<void>(QVRNameUtil::GetNextUniqueNames(base, emptyScope, count, first));
    }
    for (auto _ : state) {
        ZFXListValZFXUnicodeString names; // its destruction is not measured
        state.SetIterationTime(
            CpuSecondsOf([&] { static_cast<void>(QVRNameUtil::GetNextUniqueNames(base, emptyScope, count, names)); }));
        if (names.Size() != count)
            state.SkipWithError("too few proposals");
    }
}

} // namespace

void RegisterBatchBenchmarks() {
    for (const int count : {1000, 4000, 1000000})
        benchmark::RegisterBenchmark(BenchmarkName("GetNextUniqueNames", count).c_str(),
                                     [=](benchmark::State& state) { ProposeMany(state, count); })
            ->UseManualTime()
            ->Iterations(count > 100000 ? 1 : 100);
}
