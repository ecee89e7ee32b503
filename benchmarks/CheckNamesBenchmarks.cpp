#include "Benchmarks.h"
#include "QVRNameUtil.h"
#include "Scopes.h"
#include "analysis/ZFXIAlias.h"

#include <benchmark/benchmark.h>

namespace {

/// The features whose names are checked, and their document.
struct Checked {
    MemoryDocument document = Scopes::NewDocument();
    ZFXListValZFXISpecObject_var features = {};
};

constexpr int kSteps = 10;

/// Returns n loads in the ten steps of a case.
template <class NameOf>
Checked MakeLoads(int n, NameOf nameOf) {
    Checked loads;
    MemoryFeature analysisCase = loads.document.Case("Static");
    for (int s = 1; s <= kSteps; ++s) {
        MemoryFeature step = analysisCase.Step("QVRStaticLPStepLT", Scopes::NumberedName("Step-", s));
        MemoryFeature set = step.Set("QVRLoadContainerLT");
        for (int i = 0; i < n / kSteps; ++i)
            loads.features.Append(set.Feature("QVRPressure", nameOf(i * kSteps + s)));
    }
    return loads;
}

Checked MakeDistinctLoads(int n) {
    return MakeLoads(n, [](int number) { return Scopes::NumberedName("Pressure-", number); });
}

Checked MakeEqualLoads(int n) {
    return MakeLoads(n, [](int) { return ZFXUnicodeString("Pressure-1"); });
}

/// Returns n properties, whose aliases are guarded by the extension.
Checked MakeProperties(int n) {
    Checked properties;
    MemoryFeature set = properties.document.PropertySet();
    for (int i = 1; i <= n; ++i)
        properties.features.Append(set.Feature("QVRLayupLT", Scopes::NumberedName("Layup-", i)));
    return properties;
}

Checked MakeMeshParts(int n) {
    Checked parts;
    for (int i = 1; i <= n; ++i)
        parts.features.Append(parts.document.MeshPart(Scopes::NumberedName("Part-", i), i));
    return parts;
}

/// Returns n jobs, each in its own case.
Checked MakeJobs(int n) {
    Checked jobs;
    for (int i = 1; i <= n; ++i)
        jobs.features.Append(jobs.document.Case(Scopes::NumberedName("Case-", i)).Job(Scopes::NumberedName("Job-", i)));
    return jobs;
}

struct Document {
    const char* name;
    Checked (*make)(int n);
    int size; ///< number of features
    int findingsPerFeature;
};

constexpr Document kDocuments[] = {
    {"loads", MakeDistinctLoads, Scopes::kLargest, 0}, {"properties", MakeProperties, Scopes::kLargest, 0},
    {"meshParts", MakeMeshParts, Scopes::kLargest, 0}, {"jobs", MakeJobs, 20000, 0},
    {"equal", MakeEqualLoads, Scopes::kLargest, 1},
};

Operation CheckAll(const Document& document, int n) {
    const Checked& checked = Scopes::Cached(document.make, n);
    Scopes::Model().MakeCurrent(
        checked.document); // the name of a job is compared with all jobs of the current document
    return [features = checked.features, expected = n * document.findingsPerFeature] {
        ZFXListVal<QVRNameFinding> findings;
        return !Failed(QVRNameUtil::CheckNames(features, findings)) && findings.Size() == expected;
    };
}

/// The requests for the names of the features.
Operation ReadAll(const Document& document, int n) {
    return [features = Scopes::Cached(document.make, n).features] {
        for (const ZFXISpecObject_var& feature : features) {
            const ZFXIAlias_var alias(feature);
            benchmark::DoNotOptimize(alias->GetAlias());
        }
        return true;
    };
}

} // namespace

void RegisterCheckNamesBenchmarks() {
    for (const Document& document : kDocuments)
        for (const int n : {document.size / 2, document.size}) {
            const std::string suffix = BenchmarkName(document.name, n);
            RegisterOperation("CheckNames/" + suffix, [=] { return CheckAll(document, n); });
            RegisterOperation("ReadNames/" + suffix, [=] { return ReadAll(document, n); });
        }
}
