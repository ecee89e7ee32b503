#include "Benchmarks.h"
#include "HeapCounter.h"
#include "QVRNameUtil.h"
#include "Results.h"
#include "Scopes.h"

namespace {

using Scopes::AliasSource;

constexpr int kNames = 1000;
/// 27 units; a number of four digits follows.
constexpr const char* kBase = "Pressure on the upper rim n";
constexpr int kFirstNumber = 1000;

/// Fills the set with 2 * kNames features, whose names have 31 units, and returns them.
ZFXListValZFXBaseUnknown_var Scope(MemoryFeature set, AliasSource from) {
    ZFXListValZFXBaseUnknown_var scope;
    for (int i = 0; i < 2 * kNames; ++i)
        scope.Append(ZFXBaseUnknown_var(
            set.Feature(Scopes::LateTypeOf(from), Scopes::NumberedName(kBase, kFirstNumber + i)).Object()));
    return scope;
}

template <class Operation>
long BlocksOf(Operation operation) {
    const HeapCounter counter;
    operation();
    return HeapCounter::Blocks();
}

ZFXListValZFXBaseUnknown_var First(const ZFXListValZFXBaseUnknown_var& scope, int n) {
    ZFXListValZFXBaseUnknown_var first;
    for (int i = 1; i <= n; ++i)
        first.Append(scope[i]);
    return first;
}

/// Returns the number of heap blocks for each additional name: the difference between a scope and its first half,
/// divided by the names of a half. Runs the operation once before, on one name, so that blocks that a process or a
/// thread allocates once are not counted.
template <class Operation>
double BlocksPerName(const ZFXListValZFXBaseUnknown_var& scope, Operation operation) {
    const ZFXListValZFXBaseUnknown_var half = First(scope, kNames);
    operation(First(scope, 1));
    const long ofAll = BlocksOf([&] { operation(scope); });
    const long ofHalf = BlocksOf([&] { operation(half); });
    return static_cast<double>(ofAll - ofHalf) / kNames;
}

void MeasureBlocks(Results& results, MemoryModel& model, AliasSource from) {
    MemoryFeature root = model.NewDocument().Model();
    const ZFXListValZFXBaseUnknown_var scope = Scope(root.Set("BenchmarkSet"), from);
    const ZFXISpecObject_var feature = root.Set("BenchmarkSet").Feature(Scopes::LateTypeOf(from), "Newcomer");
    const std::string label = Scopes::LabelOf(from);
    const ZFXUnicodeString name = Scopes::NumberedName(kBase, kFirstNumber + 2 * kNames);
    results.Put(Quantity::Blocks, "Blocks/IsNameUniqueInSet/" + label, BlocksPerName(scope, [&](const auto& names) {
                    static_cast<void>(QVRNameUtil::IsNameUniqueInSet(feature, names, name));
                }));
    results.Put(Quantity::Blocks, "Blocks/GetNextUniqueName/" + label, BlocksPerName(scope, [](const auto& names) {
                    ZFXUnicodeString proposal(kBase);
                    static_cast<void>(QVRNameUtil::GetNextUniqueName(proposal, names));
                }));
}

void MeasureMemory(Results& results, MemoryModel& model) {
    MemoryFeature set = model.NewDocument().Model().Set("BenchmarkSet");
    const HeapCounter counter;
    for (int i = 0; i < Scopes::kLargest; ++i) // "Pressure load-100000": 20 units
        set.Feature("QVRPressure", Scopes::NumberedName("Pressure load-", Scopes::kLargest + i));
    results.Put(Quantity::Bytes, "Memory/feature", static_cast<double>(HeapCounter::Bytes()) / Scopes::kLargest);
}

} // namespace

void MeasureHeap(Results& results) {
    MemoryModel model; // destroyed before Scopes::Model() makes its model: only one may exist
    for (const AliasSource from : {AliasSource::Platform, AliasSource::Extension})
        MeasureBlocks(results, model, from);
    MeasureMemory(results, model);
}
