#include "Benchmarks.h"
#include "QVRNameUtil.h"
#include "Results.h"
#include "Scopes.h"

#include <map>

namespace {

constexpr int kSteps = 50;

/// A feature, and the case that contains it. The case is empty if the scope is a set.
struct FeatureInScope {
    ZFXISpecObject_var feature;
    ZFXISamAnalysisCase_var analysisCase;
};

/// Returns a feature in a case of 50 steps. The load sets of the steps contain n other features in total.
FeatureInScope MakePropagating(int n) {
    MemoryFeature analysisCase = Scopes::NewDocument().Case("Static");
    MemoryFeature first;
    for (int s = 1; s <= kSteps; ++s) {
        MemoryFeature step = analysisCase.Step("QVRStaticLPStepLT", Scopes::NumberedName("Step-", s));
        MemoryFeature set = step.Set("QVRLoadContainerLT");
        for (int i = 0; i < n / kSteps; ++i)
            set.Feature("QVRPressure", Scopes::NumberedName("Pressure-", i * kSteps + s));
        if (s == 1)
            first = set.Feature("QVRPressure", "Newcomer");
    }
    return {first, analysisCase};
}

/// Returns a feature in a set of n other features. The aliases of all are guarded by the extension.
FeatureInScope MakeGuarded(int n) {
    MemoryFeature set = Scopes::NewDocument().Model().Set("BenchmarkSet");
    const char* lateType = Scopes::LateTypeOf(Scopes::AliasSource::Extension);
    Scopes::Fill(set, lateType, "Pressure-", n);
    return {set.Feature(lateType, "Newcomer"), {}};
}

using Maker = FeatureInScope (*)(int n);

/// Returns make(n), from a cache after the first call.
const FeatureInScope& Cached(Maker make, int n) {
    // Never destroyed, because the model is never destroyed.
    static auto& cache = *new std::map<std::pair<Maker, int>, FeatureInScope>;
    const auto key = std::pair(make, n);
    const auto found = cache.find(key);
    return found != cache.end() ? found->second : cache.emplace(key, make(n)).first->second;
}

void ProposeInSteps(benchmark::State& state, int n) {
    FeatureInScope scoped = Cached(MakePropagating, n);
    const ZFXUnicodeString expected = Scopes::NumberedName("Pressure-", n + 1);
    for (auto _ : state) {
        ZFXUnicodeString name("Pressure-");
        QVRNameUtil::GetUniqueName(name, scoped.feature, scoped.analysisCase);
        if (name.Compare(expected) != 2)
            state.SkipWithError("the proposal is wrong");
    }
}

void SetAlias(benchmark::State& state, int n) {
    const FeatureInScope& scoped = Cached(MakeGuarded, n);
    const ZFXIAlias_var alias(scoped.feature);
    const ZFXUnicodeString name = Scopes::NumberedName("Pressure-", n + 1);
    for (auto _ : state)
        alias->SetAlias(name);
    if (alias->GetAlias().Compare(name) != 2)
        state.SkipWithError("the alias was not stored");
}

void CheckName(benchmark::State& state, int n) {
    FeatureInScope scoped = Cached(MakeGuarded, n);
    const ZFXUnicodeString name = Scopes::NumberedName("Pressure-", n + 1);
    for (auto _ : state)
        if (Failed(QVRNameUtil::CheckName(scoped.feature, name, 1)))
            state.SkipWithError("the name was rejected");
}

void RegisterSized(const char* name, void (*function)(benchmark::State&, int), int n) {
    benchmark::RegisterBenchmark(BenchmarkName(name, n).c_str(), [=](benchmark::State& state) { function(state, n); });
}

} // namespace

void RegisterDocumentBenchmarks() {
    for (const int n : {Scopes::kLargest / 2, Scopes::kLargest}) {
        RegisterSized("GetUniqueName/propagating", ProposeInSteps, n);
        RegisterSized("SetAlias", SetAlias, n);
        RegisterSized("CheckName", CheckName, n);
    }
}
