#include "Benchmarks.h"
#include "NamedObject.h"
#include "QVRNameUtil.h"
#include "Scopes.h"
#include "analysis/ZFXIAlias.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>

namespace {

using Scopes::AliasSource;

constexpr const char* kBase = "Pressure-";

/// A list of features, and a feature of another set.
struct Scan {
    ZFXListValZFXBaseUnknown_var scope;
    ZFXISpecObject_var feature;
};

Scan InOrder(AliasSource from, int n) { return {Scopes::FirstFeatures(from, n), Scopes::UnlistedFeature(from)}; }
Scan Scattered(AliasSource from, int /*n*/) { return {Scopes::ScatteredFeatures(from), Scopes::UnlistedFeature(from)}; }

/// Returns an unused name that is as long as nine in ten names of the scope. A shorter or longer name would be cheaper
/// to compare.
ZFXUnicodeString UnusedName(int n) {
    return ZFXUnicodeString(kBase) + ZFXUnicodeString('0', std::to_string(n - 1).size());
}

Operation CheckUnique(const Scan& scan) {
    return [scan, name = UnusedName(scan.scope.Size())] {
        return !Failed(QVRNameUtil::IsNameUniqueInSet(scan.feature, scan.scope, name));
    };
}

/// The requests of IsNameUniqueInSet, and the comparison of the names.
Operation CompareByHand(const Scan& scan) {
    return [scan, name = UnusedName(scan.scope.Size())] {
        const ZFXIAlias_var own(scan.feature);
        int clashes = 0;
        for (const ZFXBaseUnknown_var& object : scan.scope) {
            const ZFXIAlias_var alias(object);
            clashes += alias->GetAlias().Compare(name) != 0 ? 1 : 0;
        }
        return own != nullptr && clashes == 0;
    };
}

Operation Propose(const Scan& scan) {
    return [scan, expected = Scopes::NumberedName(kBase, scan.scope.Size() + 1)] {
        ZFXUnicodeString name(kBase);
        return !Failed(QVRNameUtil::GetNextUniqueName(name, scan.scope)) && name.Compare(expected) == 2;
    };
}

/// The requests of GetNextUniqueName, and the reading of the numbers.
Operation ReadNumbersByHand(const Scan& scan) {
    return [scan] { return Scopes::HighestNumberByHand(scan.scope, u"Pressure-") == scan.scope.Size(); };
}

/// As large as a feature of the model, so that a large scope causes as many cache misses.
class FeatureSizedObject final : public NamedObject {
public:
    explicit FeatureSizedObject(ZFXUnicodeString name) : m_name(std::move(name)) {}
    const ZFXUnicodeString& Name() const noexcept override { return m_name; }

private:
    ZFXUnicodeString m_name;
    std::array<std::byte, 336> m_padding{};
};

std::shared_ptr<const NamedObjects> MakeObjects(int n) {
    const auto objects = std::make_shared<NamedObjects>();
    for (int i = 1; i <= n; ++i)
        objects->push_back(std::make_unique<FeatureSizedObject>(Scopes::NumberedName(kBase, i)));
    return objects;
}

/// One virtual call and one Compare per object.
Operation CompareFloor(int n) {
    return [objects = MakeObjects(n), name = UnusedName(n)] {
        int clashes = 0;
        for (const auto& object : *objects)
            clashes += object->Name().Compare(name) != 0 ? 1 : 0;
        return clashes == 0;
    };
}

/// One virtual call and one test of the prefix per object.
Operation PrefixFloor(int n) {
    return [objects = MakeObjects(n), text = ZFXUnicodeString(kBase)] {
        std::u16string_view base = text.Units();
        benchmark::DoNotOptimize(base);
        std::size_t found = 0;
        for (const auto& object : *objects) {
            const std::u16string_view name = object->Name().Units();
            found += name.size() >= base.size() && std::memcmp(name.data(), base.data(), base.size() * 2) == 0 ? 1U : 0;
        }
        return found == objects->size();
    };
}

using MakeScan = Scan (*)(AliasSource from, int n);

void RegisterScans(const std::string& order, MakeScan make, int n) {
    for (const AliasSource from : {AliasSource::Platform, AliasSource::Extension}) {
        const std::string suffix = BenchmarkName(Scopes::LabelOf(from) + order, n);
        RegisterOperation("IsNameUniqueInSet/" + suffix, [=] { return CheckUnique(make(from, n)); });
        RegisterOperation("GetNextUniqueName/" + suffix, [=] { return Propose(make(from, n)); });
        RegisterOperation("Requests/compare/" + suffix, [=] { return CompareByHand(make(from, n)); });
        RegisterOperation("Requests/number/" + suffix, [=] { return ReadNumbersByHand(make(from, n)); });
    }
}

} // namespace

void RegisterScanBenchmarks() {
    for (const int n : Scopes::kSizes) {
        RegisterScans("", InOrder, n);
        RegisterOperation(BenchmarkName("Floor/compare", n), [n] { return CompareFloor(n); });
        RegisterOperation(BenchmarkName("Floor/prefix", n), [n] { return PrefixFloor(n); });
    }
    RegisterScans("-scattered", Scattered, Scopes::kLargest);
}
