#include "Benchmarks.h"
#include "Repeated.h"
#include "Scopes.h"
#include "analysis/ZFXIAlias.h"

namespace {

/// Returns a feature whose alias belongs to the platform. The model owns it.
ZFXISpecObject* Feature() { return Scopes::UnlistedFeature(Scopes::AliasSource::Platform).Get(); }

Operation Cast() {
    return Repeated([feature = Feature()]() mutable {
        benchmark::DoNotOptimize(feature);
        const ZFXIAlias_var alias(feature);
        benchmark::DoNotOptimize(alias.Get());
    });
}

Operation CallRaw() {
    return Repeated([feature = Feature()]() mutable {
        benchmark::DoNotOptimize(feature);
        void* face = nullptr;
        if (!Failed(feature->QueryInterface(IID_ZFXIAlias, &face)))
            static_cast<ZFXIAlias*>(face)->Release();
        benchmark::DoNotOptimize(face);
    });
}

} // namespace

void RegisterHandleBenchmarks() {
    RegisterOperation("Handle/cast", Cast);
    RegisterOperation("Handle/raw", CallRaw);
}
