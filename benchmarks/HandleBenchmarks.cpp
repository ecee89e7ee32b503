#include "Benchmarks.h"
#include "Scopes.h"
#include "analysis/ZFXIAlias.h"

namespace {

/// Returns a feature whose alias belongs to the platform. The model owns it.
ZFXISpecObject* Feature() { return Scopes::UnlistedFeature(Scopes::AliasSource::Platform).Get(); }

void Cast(benchmark::State& state) {
    ZFXISpecObject* feature = Feature();
    for (auto _ : state) {
        benchmark::DoNotOptimize(feature);
        const ZFXIAlias_var alias(feature);
        benchmark::DoNotOptimize(alias.Get());
    }
}

void CallRaw(benchmark::State& state) {
    ZFXISpecObject* feature = Feature();
    for (auto _ : state) {
        benchmark::DoNotOptimize(feature);
        void* face = nullptr;
        if (!Failed(feature->QueryInterface(IID_ZFXIAlias, &face)))
            static_cast<ZFXIAlias*>(face)->Release();
        benchmark::DoNotOptimize(face);
    }
}

} // namespace

void RegisterHandleBenchmarks() {
    benchmark::RegisterBenchmark("Handle/cast", Cast);
    benchmark::RegisterBenchmark("Handle/raw", CallRaw);
}
