#include "Benchmarks.h"
#include "NamedThing.h"
#include "QVRNameUtil.h"
#include "Results.h"
#include "Scopes.h"

#include <array>
#include <cstddef>
#include <cstring>
#include <string>

namespace {

using Scopes::AliasFrom;

constexpr const char* kBase = "Pressure-";

/// Free, and as long as nine in ten names of the scope: a name of another length is told apart by its length alone.
ZFXUnicodeString FreeName(int n) {
    const std::size_t digits = std::to_string(n - 1).size();
    return ZFXUnicodeString(kBase) + ZFXUnicodeString('0', digits);
}

/// As large as a feature of the model: a scope that does not fit the caches costs the floor the same way.
class OneNamed final : public NamedThing {
public:
    explicit OneNamed(ZFXUnicodeString name) : m_name(std::move(name)) {}
    const ZFXUnicodeString& Name() const noexcept override { return m_name; }

private:
    ZFXUnicodeString m_name;
    std::array<std::byte, 336> m_rest{};
};

NamedThings Things(int n) {
    NamedThings things;
    for (int i = 1; i <= n; ++i)
        things.push_back(std::make_unique<OneNamed>(Scopes::NumberedName(kBase, i)));
    return things;
}

void CheckUnique(benchmark::State& state, AliasFrom from, int n) {
    const ZFXListValZFXBaseUnknown_var scope = Scopes::FirstFeatures(from, n);
    const ZFXISpecObject_var feature = Scopes::Newcomer(from);
    const ZFXUnicodeString name = FreeName(n);
    for (auto _ : state)
        if (Failed(QVRNameUtil::IsNameUniqueInSet(feature, scope, name)))
            state.SkipWithError("the name clashes");
}

void Propose(benchmark::State& state, AliasFrom from, int n) {
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

void CompareFloor(benchmark::State& state, int n) {
    const NamedThings things = Things(n);
    const ZFXUnicodeString name = FreeName(n);
    for (auto _ : state) {
        int clashes = 0;
        for (const auto& thing : things)
            clashes += thing->Name().Compare(name) != 0 ? 1 : 0;
        benchmark::DoNotOptimize(clashes);
    }
}

void PrefixFloor(benchmark::State& state, int n) {
    const NamedThings things = Things(n);
    const ZFXUnicodeString text(kBase);
    std::u16string_view base = text.Units();
    for (auto _ : state) {
        benchmark::DoNotOptimize(base);
        int found = 0;
        for (const auto& thing : things) {
            const std::u16string_view name = thing->Name().Units();
            found += name.size() >= base.size() && std::memcmp(name.data(), base.data(), base.size() * 2) == 0 ? 1 : 0;
        }
        benchmark::DoNotOptimize(found);
    }
}

} // namespace

void RegisterScanBenchmarks() {
    for (const int n : Scopes::kSizes) {
        for (const AliasFrom from : {AliasFrom::Platform, AliasFrom::Extension}) {
            const std::string word = Scopes::WordOf(from);
            benchmark::RegisterBenchmark(Sized("IsNameUniqueInSet/" + word, n).c_str(),
                                         [=](benchmark::State& state) { CheckUnique(state, from, n); });
            benchmark::RegisterBenchmark(Sized("GetNextUniqueName/" + word, n).c_str(),
                                         [=](benchmark::State& state) { Propose(state, from, n); });
        }
        benchmark::RegisterBenchmark(Sized("Floor/compare", n).c_str(),
                                     [=](benchmark::State& state) { CompareFloor(state, n); });
        benchmark::RegisterBenchmark(Sized("Floor/prefix", n).c_str(),
                                     [=](benchmark::State& state) { PrefixFloor(state, n); });
    }
}
