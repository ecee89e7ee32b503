#include "Benchmarks.h"
#include "QVRNameUtil.h"
#include "Scopes.h"

namespace {

Operation ProposeForList(int count) {
    return [count] {
        const ZFXListValZFXBaseUnknown_var emptyScope;
        ZFXUnicodeString base("Pressure-");
        ZFXListValZFXUnicodeString names;
        return !Failed(QVRNameUtil::GetNextUniqueNames(base, emptyScope, count, names)) && names.Size() == count;
    };
}

/// The scope is a set of 100 features in a step.
Operation ProposeForFeature(int count) {
    MemoryFeature analysisCase = Scopes::NewDocument().Case("Static");
    MemoryFeature set = analysisCase.Step("QVRStaticLPStepLT", "Step-1").Set("QVRLoadContainerLT");
    Scopes::Fill(set, "QVRPressure", "Pressure-", 100);
    return [count, feature = ZFXISpecObject_var(set.Feature("QVRPressure", "Newcomer")),
            scopeCase = ZFXISamAnalysisCase_var(analysisCase)]() mutable {
        ZFXListValZFXUnicodeString names;
        return !Failed(QVRNameUtil::GetUniqueNames("Pressure-", feature, scopeCase, count, names)) &&
               names.Size() == count;
    };
}

} // namespace

void RegisterBatchBenchmarks() {
    for (const int count : {1000, 4000, 1000000})
        RegisterOperation(BenchmarkName("GetNextUniqueNames", count), [count] { return ProposeForList(count); });
    for (const int count : {1000, 1000000})
        RegisterOperation(BenchmarkName("GetUniqueNames", count), [count] { return ProposeForFeature(count); });
}
