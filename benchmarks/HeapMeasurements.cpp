#include "Benchmarks.h"
#include "HeapCounter.h"
#include "QVRNameUtil.h"
#include "Results.h"
#include "Scopes.h"

namespace {

using Scopes::AliasFrom;

constexpr int kNames = 1000;
/// 27 units, and four digits behind it.
constexpr const char* kBase = "Pressure on the upper rim n";
constexpr int kFirstNumber = 1000;

/// A scope of twice kNames names of 31 units.
ZFXListValZFXBaseUnknown_var Scope(MemoryFeature set, AliasFrom from) {
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

/// Blocks that each further name costs: those of a scope, less those of its first half. A scope of one name comes
/// first: what a process or a thread takes once is no part of it.
template <class Operation>
double BlocksPerName(const ZFXListValZFXBaseUnknown_var& scope, Operation operation) {
    const ZFXListValZFXBaseUnknown_var half = First(scope, kNames);
    operation(First(scope, 1));
    const long ofAll = BlocksOf([&] { operation(scope); });
    const long ofHalf = BlocksOf([&] { operation(half); });
    return static_cast<double>(ofAll - ofHalf) / kNames;
}

void MeasureBlocks(Results& results, MemoryModel& model, AliasFrom from) {
    MemoryFeature root = model.NewDocument().Model();
    const ZFXListValZFXBaseUnknown_var scope = Scope(root.Set("BenchmarkSet"), from);
    const ZFXISpecObject_var feature = root.Set("BenchmarkSet").Feature(Scopes::LateTypeOf(from), "Newcomer");
    const std::string word = Scopes::WordOf(from);
    const ZFXUnicodeString name = Scopes::NumberedName(kBase, kFirstNumber + 2 * kNames);
    results.Put("Blocks/IsNameUniqueInSet/" + word, BlocksPerName(scope, [&](const auto& names) {
                    static_cast<void>(QVRNameUtil::IsNameUniqueInSet(feature, names, name));
                }));
    results.Put("Blocks/GetNextUniqueName/" + word, BlocksPerName(scope, [](const auto& names) {
                    ZFXUnicodeString proposal(kBase);
                    static_cast<void>(QVRNameUtil::GetNextUniqueName(proposal, names));
                }));
}

void MeasureMemory(Results& results, MemoryModel& model) {
    MemoryFeature set = model.NewDocument().Model().Set("BenchmarkSet");
    const HeapCounter counter;
    for (int i = 0; i < Scopes::kLargest; ++i) // "Pressure load-100000": 20 units
        set.Feature("QVRPressure", Scopes::NumberedName("Pressure load-", Scopes::kLargest + i));
    results.Put("Memory/feature", static_cast<double>(HeapCounter::Bytes()) / Scopes::kLargest);
}

} // namespace

void MeasureHeap(Results& results) {
    MemoryModel model; // gone before that of the scopes is made
    for (const AliasFrom from : {AliasFrom::Platform, AliasFrom::Extension})
        MeasureBlocks(results, model, from);
    MeasureMemory(results, model);
}
