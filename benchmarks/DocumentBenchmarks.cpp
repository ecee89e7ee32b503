#include "Benchmarks.h"
#include "QVRNameUtil.h"
#include "Results.h"
#include "Scopes.h"

#include <map>

namespace {

constexpr int kSteps = 50;

/// One feature and what holds the scope of its name.
struct Place {
    ZFXISpecObject_var feature;
    ZFXISamAnalysisCase_var analysisCase;
};

/// A case of 50 steps whose load sets hold n features in all.
Place MakePropagating(int n) {
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

/// A set of n features whose alias is guarded, and one more.
Place MakeGuarded(int n) {
    MemoryFeature set = Scopes::NewDocument().Model().Set("BenchmarkSet");
    const char* lateType = Scopes::LateTypeOf(Scopes::AliasFrom::Extension);
    Scopes::Fill(set, lateType, "Pressure-", n);
    return {set.Feature(lateType, "Newcomer"), {}};
}

const Place& Kept(Place (*make)(int), int n) {
    static std::map<std::pair<Place (*)(int), int>, Place>& places = // never destroyed, as the model is not
        *new std::map<std::pair<Place (*)(int), int>, Place>;
    const auto key = std::pair(make, n);
    const auto found = places.find(key);
    return found != places.end() ? found->second : places.emplace(key, make(n)).first->second;
}

void ProposeInSteps(benchmark::State& state, int n) {
    Place place = Kept(MakePropagating, n);
    const ZFXUnicodeString expected = Scopes::NumberedName("Pressure-", n + 1);
    for (auto _ : state) {
        ZFXUnicodeString name("Pressure-");
        QVRNameUtil::GetUniqueName(name, place.feature, place.analysisCase);
        if (name.Compare(expected) != 2)
            state.SkipWithError("the proposal is wrong");
    }
}

void SetAlias(benchmark::State& state, int n) {
    const Place& place = Kept(MakeGuarded, n);
    const ZFXIAlias_var alias(place.feature);
    const ZFXUnicodeString name = Scopes::NumberedName("Pressure-", n + 1);
    for (auto _ : state)
        alias->SetAlias(name);
    if (alias->GetAlias().Compare(name) != 2)
        state.SkipWithError("the alias was not stored");
}

void CheckName(benchmark::State& state, int n) {
    Place place = Kept(MakeGuarded, n);
    const ZFXUnicodeString name = Scopes::NumberedName("Pressure-", n + 1);
    for (auto _ : state)
        if (Failed(QVRNameUtil::CheckName(place.feature, name, 1)))
            state.SkipWithError("the name was refused");
}

void RegisterSized(const char* name, void (*function)(benchmark::State&, int), int n) {
    benchmark::RegisterBenchmark(Sized(name, n).c_str(), [=](benchmark::State& state) { function(state, n); });
}

} // namespace

void RegisterDocumentBenchmarks() {
    for (const int n : {Scopes::kLargest / 2, Scopes::kLargest}) {
        RegisterSized("GetUniqueName/propagating", ProposeInSteps, n);
        RegisterSized("SetAlias", SetAlias, n);
        RegisterSized("CheckName", CheckName, n);
    }
}
