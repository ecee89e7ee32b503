#include "Benchmarks.h"
#include "QVRNameUtil.h"
#include "Scopes.h"
#include "analysis/QVRIPropagatingFeature.h"
#include "analysis/QVRIStep.h"
#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXIAlias.h"
#include "analysis/ZFXISamAnalysisEntity.h"
#include "analysis/ZFXISamAnalysisScan.h"
#include "analysis/ZFXISamAnalysisSet.h"

#include <memory>
#include <tuple>
#include <utility>

namespace {

using List = ZFXListValZFXBaseUnknown_var;

constexpr int kSteps = 50;

/// A feature, and the case that contains it. The case is empty if the scope is a set.
struct FeatureInScope {
    ZFXISpecObject_var feature;
    ZFXISamAnalysisCase_var analysisCase;
};

/// Returns a feature in a case of 50 steps. The load sets of the steps contain n other features in total.
FeatureInScope MakePropagating(int n) {
    MemoryFeature analysisCase = Scopes::NewDocument().Case("Static");
    MemoryFeature first;
    for (int s = 1; s <= kSteps; ++s) {
        MemoryFeature step = analysisCase.Step("QVRStaticLPStepLT", Scopes::NumberedName("Step-", s));
        MemoryFeature set = step.Set("QVRLoadContainerLT");
        for (int i = 0; i < n / kSteps; ++i)
            set.Feature("QVRPressure", Scopes::NumberedName("Pressure-", i * kSteps + s));
        if (s == 1)
            first = set.Feature("QVRPressure", "Newcomer");
    }
    return {first, analysisCase};
}

/// Returns a feature in a set of n other features. The aliases of all are guarded by the extension.
FeatureInScope MakeGuarded(int n) {
    MemoryFeature set = Scopes::NewDocument().Model().Set("BenchmarkSet");
    const char* lateType = Scopes::LateTypeOf(Scopes::AliasSource::Extension);
    Scopes::Fill(set, lateType, "Pressure-", n);
    return {set.Feature(lateType, "Newcomer"), {}};
}

Operation ProposeInSteps(int n) {
    return
        [scoped = Scopes::Cached(MakePropagating, n), expected = Scopes::NumberedName("Pressure-", n + 1)]() mutable {
            ZFXUnicodeString name("Pressure-");
            QVRNameUtil::GetUniqueName(name, scoped.feature, scoped.analysisCase);
            return name.Compare(expected) == 2;
        };
}

/// Makes the requests for the late type of the set that contains the feature.
ZFXUnicodeString SetTypeByHand(const ZFXISpecObject_var& feature) {
    ZFXListValZFXBaseUnknown_var* sets = nullptr;
    std::ignore = ZFXISamAnalysisEntity_var(feature)->GetParentSets(sets);
    const std::unique_ptr<ZFXListValZFXBaseUnknown_var> owned(sets);
    return ZFXISpecObject_var((*sets)[1])->GetLateType();
}

const ZFXUnicodeString kInitialTemperature("QVRInitialTemperatureLT");

/// Appends the features of a step that are not propagated.
void AppendStepByHand(const ZFXISpecObject_var& step, const ZFXISpecObject_var& feature, List& features) {
    const ZFXUnicodeString setType = SetTypeByHand(feature);
    List sets;
    std::ignore = ZFXISamAnalysisScan_var(step)->FindObjectsOfType(setType, sets, ZFXISamAnalysisScan::kScanMode);
    for (const ZFXBaseUnknown_var& set : sets) {
        ZFXListValZFXISpecObject_var members;
        std::ignore =
            ZFXISamAnalysisSet_var(set)->ListMembers(members, CLSID_ZFXBaseUnknown, ZFXISamAnalysisSet::kMemberFlag);
        for (ZFXISpecObject_var& member : members) {
            const QVRIPropagatingFeature_var propagating(member);
            if (propagating == nullptr || member->GetLateType() == kInitialTemperature ||
                propagating->IsPropagated() == 0)
                features.Append(std::move(member));
        }
    }
}

/// The requests of GetUniqueName for a load: it finds the history of the case, lists its steps, searches each step for
/// the sets of the load's kind, lists their members, and reads the name of each but the load. Then the reading of the
/// numbers.
Operation ProposeInStepsByHand(int n) {
    return [scoped = Scopes::Cached(MakePropagating, n), n]() mutable {
        const bool isStep = QVRIStep_var(scoped.feature) != nullptr;
        if (isStep || QVRAnalysisEntityUtils::IsObjectAProperty(scoped.feature) != 0 ||
            QVRAnalysisEntityUtils::IsObjectAnAmplitude(scoped.feature) != 0)
            return false;
        List found;
        List steps;
        List features;
        std::ignore = ZFXISamAnalysisScan_var(scoped.analysisCase)
                          ->FindObjectsOfType("QVROruSimHistLT", found, ZFXISamAnalysisScan::kScanMode);
        std::ignore = ZFXISamAnalysisScan_var(found[1])->ListChildren(steps, ZFXISamAnalysisScan::kScanMode);
        for (const ZFXBaseUnknown_var& step : steps)
            AppendStepByHand(ZFXISpecObject_var(step), scoped.feature, features);
        List others;
        for (ZFXBaseUnknown_var& feature : features)
            if (feature != scoped.feature)
                others.Append(std::move(feature));
        return Scopes::HighestNumberByHand(others, u"Pressure-") == n;
    };
}

Operation SetAlias(int n) {
    return [alias = ZFXIAlias_var(Scopes::Cached(MakeGuarded, n).feature),
            name = Scopes::NumberedName("Pressure-", n + 1)] {
        alias->SetAlias(name);
        return alias->GetAlias().Compare(name) == 2;
    };
}

Operation CheckName(int n) {
    return [scoped = Scopes::Cached(MakeGuarded, n), name = Scopes::NumberedName("Pressure-", n + 1)]() mutable {
        return !Failed(QVRNameUtil::CheckName(scoped.feature, name, 1));
    };
}

} // namespace

void RegisterDocumentBenchmarks() {
    for (const int n : {Scopes::kLargest / 2, Scopes::kLargest}) {
        RegisterOperation(BenchmarkName("GetUniqueName/propagating", n), [n] { return ProposeInSteps(n); });
        RegisterOperation(BenchmarkName("Requests/propagating", n), [n] { return ProposeInStepsByHand(n); });
        RegisterOperation(BenchmarkName("SetAlias", n), [n] { return SetAlias(n); });
        RegisterOperation(BenchmarkName("CheckName", n), [n] { return CheckName(n); });
    }
}
