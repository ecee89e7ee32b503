#include "Benchmarks.h"
#include "QVRGenI18NUtils.h"
#include "Results.h"
#include "Scopes.h"
#include "SetUp.h"

#include <vector>

namespace {

using Objects = std::vector<ZFXISpecObject_var>;
using Naming = HRESULT (QVRGenI18NUtils::*)(const ZFXISpecObject_var&, ZFXUnicodeString&) noexcept;

Objects FirstObjects(int n) {
    const ZFXListValZFXBaseUnknown_var features = Scopes::FirstFeatures(Scopes::AliasFrom::Platform, n);
    Objects objects;
    for (int i = 1; i <= n; ++i)
        objects.emplace_back(features[i]);
    return objects;
}

void Meet(Naming naming, const Objects& objects) {
    ZFXUnicodeString name;
    for (const ZFXISpecObject_var& object : objects)
        (QVRGenI18NUtils::Instance()->*naming)(object, name);
}

/// Features are met by their generic names: display names are counted among those of all features met before.
void NameMet(benchmark::State& state, Naming naming, Naming meeting, int n) {
    const Objects objects = FirstObjects(n);
    QVRGenI18NUtils::Instance()->ResetAllLists();
    Meet(meeting, objects);
    const std::size_t stride = objects.size() / 10; // ten of them, in turn
    std::size_t next = 0;
    ZFXUnicodeString name;
    for (auto _ : state) {
        benchmark::DoNotOptimize((QVRGenI18NUtils::Instance()->*naming)(objects[next * stride], name));
        next = (next + 1) % 10;
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
}

void NameNew(benchmark::State& state, int n) {
    const Objects objects = FirstObjects(n);
    for (auto _ : state) {
        QVRGenI18NUtils::Instance()->ResetAllLists();
        state.SetIterationTime(SecondsOf([&] { Meet(&QVRGenI18NUtils::GetGenericEnglishFeatureName, objects); }));
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
}

void RegisterMet(const std::string& operation, Naming naming, Naming meeting) {
    for (const int n : {100, Scopes::kLargest})
        benchmark::RegisterBenchmark(Sized(operation + "/met", n).c_str(), [=](benchmark::State& state) {
            NameMet(state, naming, meeting, n);
        })->Iterations(2000);
}

} // namespace

void RegisterMetObjectBenchmarks() {
    const Naming generic = &QVRGenI18NUtils::GetGenericEnglishFeatureName;
    const Naming material = &QVRGenI18NUtils::GetGenericEnglishMaterialName;
    RegisterMet("GetFeatureName", &QVRGenI18NUtils::GetFeatureName, generic);
    RegisterMet("GetGenericEnglishFeatureName", generic, generic);
    RegisterMet("GetGenericEnglishMaterialName", material, material);
    for (const int n : {2000, 4000, Scopes::kLargest / 2, Scopes::kLargest})
        benchmark::RegisterBenchmark(Sized("GetGenericEnglishFeatureName/new", n).c_str(),
                                     [=](benchmark::State& state) { NameNew(state, n); })
            ->UseManualTime()
            ->Iterations(3);
}
