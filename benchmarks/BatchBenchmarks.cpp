#include "Benchmarks.h"
#include "QVRNameUtil.h"
#include "Results.h"
#include "SetUp.h"

namespace {

void ProposeMany(benchmark::State& state, int count) {
    const ZFXListValZFXBaseUnknown_var emptyScope;
    ZFXUnicodeString base("Pressure-");
    {
        ZFXListValZFXUnicodeString first; // fetches the memory
        static_cast<void>(QVRNameUtil::GetNextUniqueNames(base, emptyScope, count, first));
    }
    for (auto _ : state) {
        ZFXListValZFXUnicodeString names; // its end is not timed
        state.SetIterationTime(
            SecondsOf([&] { static_cast<void>(QVRNameUtil::GetNextUniqueNames(base, emptyScope, count, names)); }));
        if (names.Size() != count)
            state.SkipWithError("too few proposals");
    }
}

} // namespace

void RegisterBatchBenchmarks() {
    for (const int count : {1000, 4000, 1000000})
        benchmark::RegisterBenchmark(Sized("GetNextUniqueNames", count).c_str(),
                                     [=](benchmark::State& state) { ProposeMany(state, count); })
            ->UseManualTime()
            ->Iterations(count > 100000 ? 1 : 100);
}
