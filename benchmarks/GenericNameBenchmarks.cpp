#include "Benchmarks.h"
#include "CpuTime.h"
#include "QVRGenI18NUtils.h"
#include "Results.h"
#include "Scopes.h"

#include <vector>

namespace {

using Objects = std::vector<ZFXISpecObject_var>;
using NamingOperation = HRESULT (QVRGenI18NUtils::*)(const ZFXISpecObject_var&, ZFXUnicodeString&) noexcept;

Objects FirstObjects(int n) {
    const ZFXListValZFXBaseUnknown_var features = Scopes::FirstFeatures(Scopes::AliasSource::Platform, n);
    Objects objects;
    for (int i = 1; i <= n; ++i)
        objects.emplace_back(features[i]);
    return objects;
}

/// Names all objects, so that the singleton knows them.
void NameAll(NamingOperation naming, const Objects& objects) {
    ZFXUnicodeString name;
    for (const ZFXISpecObject_var& object : objects)
        (QVRGenI18NUtils::Instance()->*naming)(object, name);
}

/// Measures `naming` on ten of n known objects. `first` has named them before. For features that is
/// GetGenericEnglishFeatureName: GetFeatureName compares each display name with those of all known features.
void NameKnown(benchmark::State& state, NamingOperation naming, NamingOperation first, int n) {
    const Objects objects = FirstObjects(n);
    QVRGenI18NUtils::Instance()->ResetAllLists();
    NameAll(first, objects);
    const std::size_t stride = objects.size() / 10;
    std::size_t next = 0;
    ZFXUnicodeString name;
    for (auto _ : state) {
        benchmark::DoNotOptimize((QVRGenI18NUtils::Instance()->*naming)(objects[next * stride], name));
        next = (next + 1) % 10;
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
}

/// Measures the time to name n objects that the singleton does not know.
void NameNew(benchmark::State& state, int n) {
    const Objects objects = FirstObjects(n);
    for (auto _ : state) {
        QVRGenI18NUtils::Instance()->ResetAllLists();
        state.SetIterationTime(CpuSecondsOf([&] { NameAll(&QVRGenI18NUtils::GetGenericEnglishFeatureName, objects); }));
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
}

void RegisterKnown(const std::string& operation, NamingOperation naming, NamingOperation first) {
    for (const int n : {100, Scopes::kLargest})
        benchmark::RegisterBenchmark(BenchmarkName(operation + "/known", n).c_str(), [=](benchmark::State& state) {
            NameKnown(state, naming, first, n);
        })->Iterations(2000);
}

} // namespace

void RegisterGenericNameBenchmarks() {
    const NamingOperation generic = &QVRGenI18NUtils::GetGenericEnglishFeatureName;
    const NamingOperation material = &QVRGenI18NUtils::GetGenericEnglishMaterialName;
    RegisterKnown("GetFeatureName", &QVRGenI18NUtils::GetFeatureName, generic);
    RegisterKnown("GetGenericEnglishFeatureName", generic, generic);
    RegisterKnown("GetGenericEnglishMaterialName", material, material);
    for (const int n : {2000, 4000, Scopes::kLargest / 2, Scopes::kLargest})
        benchmark::RegisterBenchmark(BenchmarkName("GetGenericEnglishFeatureName/new", n).c_str(),
                                     [=](benchmark::State& state) { NameNew(state, n); })
            ->UseManualTime()
            ->Iterations(3);
}
