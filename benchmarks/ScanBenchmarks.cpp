#include "Benchmarks.h"
#include "NamedObject.h"
#include "QVRNameUtil.h"
#include "Results.h"
#include "Scopes.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <string>

namespace {

using Scopes::AliasSource;

constexpr const char* kBase = "Pressure-";

/// Returns an unused name that is as long as nine in ten names of the scope. A shorter or longer name would be cheaper
/// to compare.
ZFXUnicodeString UnusedName(int n) {
    const std::size_t digits = std::to_string(n - 1).size();
    return ZFXUnicodeString(kBase) + ZFXUnicodeString('0', digits);
}

/// As large as a feature of the model, so that a large scope causes as many cache misses in the reference loops.
class FeatureSizedObject final : public NamedObject {
public:
    explicit FeatureSizedObject(ZFXUnicodeString name) : m_name(std::move(name)) {}
    const ZFXUnicodeString& Name() const noexcept override { return m_name; }

private:
    ZFXUnicodeString m_name;
    std::array<std::byte, 336> m_padding{};
};

NamedObjects MakeObjects(int n) {
    NamedObjects objects;
    for (int i = 1; i <= n; ++i)
        objects.push_back(std::make_unique<FeatureSizedObject>(Scopes::NumberedName(kBase, i)));
    return objects;
}

void CheckUnique(benchmark::State& state, AliasSource from, int n) {
    const ZFXListValZFXBaseUnknown_var scope = Scopes::FirstFeatures(from, n);
    const ZFXISpecObject_var feature = Scopes::UnlistedFeature(from);
    const ZFXUnicodeString name = UnusedName(n);
    for (auto _ : state)
        if (Failed(QVRNameUtil::IsNameUniqueInSet(feature, scope, name)))
            state.SkipWithError("the name clashes");
}

void Propose(benchmark::State& state, AliasSource from, int n) {
    const ZFXListValZFXBaseUnknown_var scope = Scopes::FirstFeatures(from, n);
    const ZFXUnicodeString expected = Scopes::NumberedName(kBase, n + 1);
    ZFXUnicodeString name;
    for (auto _ : state) {
        name = kBase;
        static_cast<void>(QVRNameUtil::GetNextUniqueName(name, scope));
        if (name.Compare(expected) != 2)
            state.SkipWithError("the proposal is wrong");
    }
}

/// The reference for IsNameUniqueInSet: one virtual call and one Compare per object.
void CompareFloor(benchmark::State& state, int n) {
    const NamedObjects objects = MakeObjects(n);
    const ZFXUnicodeString name = UnusedName(n);
    for (auto _ : state) {
        int clashes = 0;
        for (const auto& object : objects)
            clashes += object->Name().Compare(name) != 0 ? 1 : 0;
        benchmark::DoNotOptimize(clashes);
    }
}

/// The reference for GetNextUniqueName: one virtual call and one test of the prefix per object.
void PrefixFloor(benchmark::State& state, int n) {
    const NamedObjects objects = MakeObjects(n);
    const ZFXUnicodeString text(kBase);
    std::u16string_view base = text.Units();
    for (auto _ : state) {
        benchmark::DoNotOptimize(base);
        int found = 0;
        for (const auto& object : objects) {
            const std::u16string_view name = object->Name().Units();
            found += name.size() >= base.size() && std::memcmp(name.data(), base.data(), base.size() * 2) == 0 ? 1 : 0;
        }
        benchmark::DoNotOptimize(found);
    }
}

} // namespace

void RegisterScanBenchmarks() {
    for (const int n : Scopes::kSizes) {
        for (const AliasSource from : {AliasSource::Platform, AliasSource::Extension}) {
            const std::string label = Scopes::LabelOf(from);
            benchmark::RegisterBenchmark(BenchmarkName("IsNameUniqueInSet/" + label, n).c_str(),
                                         [=](benchmark::State& state) { CheckUnique(state, from, n); });
            benchmark::RegisterBenchmark(BenchmarkName("GetNextUniqueName/" + label, n).c_str(),
                                         [=](benchmark::State& state) { Propose(state, from, n); });
        }
        benchmark::RegisterBenchmark(BenchmarkName("Floor/compare", n).c_str(),
                                     [=](benchmark::State& state) { CompareFloor(state, n); });
        benchmark::RegisterBenchmark(BenchmarkName("Floor/prefix", n).c_str(),
                                     [=](benchmark::State& state) { PrefixFloor(state, n); });
    }
}
