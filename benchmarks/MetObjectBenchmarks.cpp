#include "Benchmarks.h"
#include "QVRGenI18NUtils.h"
#include "Results.h"
#include "Scopes.h"
#include "SetUp.h"

#include <set>
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

/// False when it takes too long.
bool Meet(Naming naming, const Objects& objects) {
    const SetUpLimit limit;
    ZFXUnicodeString name;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        (QVRGenI18NUtils::Instance()->*naming)(objects[i], name);
        if (i % 256 == 0 && limit.IsOver())
            return false;
    }
    return true;
}

/// Whether it took too long before: then it is not tried again.
bool IsTooSlow(const std::string& benchmark, Naming naming, const Objects& objects) {
    static std::set<std::string> tooSlow;
    QVRGenI18NUtils::Instance()->ResetAllLists();
    if (!tooSlow.contains(benchmark) && Meet(naming, objects))
        return false;
    tooSlow.insert(benchmark);
    QVRGenI18NUtils::Instance()->ResetAllLists();
    return true;
}

void NameMet(benchmark::State& state, const std::string& benchmark, Naming naming, int n) {
    const Objects objects = FirstObjects(n);
    if (IsTooSlow(benchmark, naming, objects)) {
        state.SkipWithError("meeting the objects takes more than 3 s");
        return;
    }
    const std::size_t stride = objects.size() / 10; // ten of them, in turn
    std::size_t next = 0;
    ZFXUnicodeString name;
    for (auto _ : state) {
        benchmark::DoNotOptimize((QVRGenI18NUtils::Instance()->*naming)(objects[next * stride], name));
        next = (next + 1) % 10;
    }
    QVRGenI18NUtils::Instance()->ResetAllLists();
}

void NameNew(benchmark::State& state, const std::string& benchmark, int n) {
    const Objects objects = FirstObjects(n);
    for (auto _ : state) {
        bool isTooSlow = false;
        state.SetIterationTime(SecondsOf(
            [&] { isTooSlow = IsTooSlow(benchmark, &QVRGenI18NUtils::GetGenericEnglishFeatureName, objects); }));
        if (isTooSlow)
            state.SkipWithError("it takes more than 3 s");
        QVRGenI18NUtils::Instance()->ResetAllLists();
    }
}

void RegisterMet(const std::string& operation, Naming naming) {
    for (const int n : {100, Scopes::kLargest}) {
        const std::string name = Sized(operation + "/met", n);
        benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
            NameMet(state, name, naming, n);
        })->Iterations(2000);
    }
}

} // namespace

void RegisterMetObjectBenchmarks() {
    RegisterMet("GetFeatureName", &QVRGenI18NUtils::GetFeatureName);
    RegisterMet("GetGenericEnglishFeatureName", &QVRGenI18NUtils::GetGenericEnglishFeatureName);
    RegisterMet("GetGenericEnglishMaterialName", &QVRGenI18NUtils::GetGenericEnglishMaterialName);
    for (const int n : {2000, 4000, Scopes::kLargest / 2, Scopes::kLargest}) {
        const std::string name = Sized("GetGenericEnglishFeatureName/new", n);
        benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) { NameNew(state, name, n); })
            ->UseManualTime()
            ->Iterations(1);
    }
}
