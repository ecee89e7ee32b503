#include "internal/NameScopes.h"

#include "analysis/QVRIPropagatingFeature.h"
#include "analysis/QVRIStep.h"
#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXILinkableObject.h"
#include "internal/Navigation.h"
#include "internal/Vocabulary.h"

#include <tuple>
#include <utility>

namespace NameScopes {
namespace {

using Navigation::ParentSetOutcome;
using List = ZFXListValZFXBaseUnknown_var;

/// Combines one function per scope into a visitor.
template <class... Functions>
struct Visitor : Functions... {
    using Functions::operator()...;
};
template <class... Functions>
Visitor(Functions...) -> Visitor<Functions...>;

/// Returns true if a member came into its step from an earlier step. An initial temperature never did.
bool IsPropagated(const ZFXISpecObject_var& member) {
    const QVRIPropagatingFeature_var propagating(member);
    return propagating != nullptr && member->GetLateType() != Vocabulary::QVRInitialTemperatureLT &&
           propagating->IsPropagated() != 0;
}

Decision CompareWithCases(const ZFXISamAnalysisModel_var& model, const Compare& compare) {
    List cases;
    std::ignore = model->ListAnalysisCases(cases); // The list counts, not the code.
    for (const ZFXBaseUnknown_var& analysisCase : cases) {
        const ZFXISamAnalysisScan_var scan(analysisCase);
        if (scan == nullptr)
            return {.code = E_FAIL};
        List containers;
        std::ignore = scan->FindObjectsOfType(Vocabulary::QVRJobContainerLT, containers,
                                              ZFXISamAnalysisScan::kScanMode); // The list counts, not the code.
        if (containers.Size() == 0)
            continue;
        const ZFXISamAnalysisSet_var container(containers[1]);
        if (container == nullptr)
            return {.code = E_FAIL};
        const Decision decision = CompareWith(Members{container}, {}, compare);
        if (decision.IsFailure())
            return decision;
    }
    return {};
}

} // namespace

Scope OfStep(const ZFXISpecObject_var& step) {
    ZFXBaseUnknown_var history = Navigation::SimulationHistoryAbove(step);
    if (history == nullptr)
        return Decision::Broken(MessageId::StepParentERR_01);
    return Steps{std::move(history)};
}

Scope OfPropagatingObject(const ZFXISpecObject_var& object) {
    ZFXISpecObject_var parent;
    HRESULT code = QVRAnalysisEntityUtils::GetParentCaseFromObject(object, parent);
    if (!Failed(code))
        return Propagating{ZFXISamAnalysisCase_var(parent)};
    // Outside all cases, the current case of the document is the scope. Without a current case every name is unused.
    const ZFXILinkableObject_var linkable(object);
    ZFXDocument* document = linkable == nullptr ? nullptr : linkable->GetOwningDocument();
    if (document == nullptr)
        return Decision{.code = code};
    Propagating scope;
    code = QVRStepUtils::GetCurrentAnalysisCaseSP(scope.analysisCase, document);
    if (Failed(code) || scope.analysisCase == nullptr)
        return Decision{.code = code};
    return scope;
}

Scope OfMember(const ZFXISpecObject_var& object) {
    const Navigation::ParentSetResult parent = Navigation::FirstParentSetOf(object);
    if (parent.outcome != ParentSetOutcome::Found)
        return Decision{.code = parent.outcome == ParentSetOutcome::EmptyList ? S_OK : parent.code};
    const ZFXISamAnalysisSet_var set(parent.set);
    if (set == nullptr)
        return Decision{.code = E_FAIL};
    return Members{set};
}

Kind KindOf(const ZFXISpecObject_var& feature) {
    if (QVRIStep_var(feature) != nullptr)
        return Kind::Step;
    return QVRIPropagatingFeature_var(feature) != nullptr ? Kind::PropagatingObject : Kind::Member;
}

Scope OfFeature(const ZFXISpecObject_var& feature) {
    switch (KindOf(feature)) {
    case Kind::Step:
        return OfStep(feature);
    case Kind::PropagatingObject:
        return OfPropagatingObject(feature);
    case Kind::Member:
        break;
    }
    return OfMember(feature);
}

Scope OfJob(const ZFXISpecObject_var& job) {
    const Navigation::ParentSetResult parent = Navigation::FirstParentSetOf(job);
    if (parent.outcome != ParentSetOutcome::Found)
        return Decision{.code = parent.outcome == ParentSetOutcome::EmptyList ? E_FAIL : parent.code};
    const ZFXISpecObject_var container(parent.set);
    const ZFXISamAnalysisModel_var model(container == nullptr ? ZFXBaseUnknown_var()
                                                              : ZFXBaseUnknown_var::Attach(container->GetFather()));
    if (model == nullptr)
        return Decision{.code = E_FAIL};
    return JobsAcrossCases{model};
}

Scope OfBoltTightening(const ZFXISpecObject_var& feature) {
    const ZFXISamAnalysisScan_var father(ZFXBaseUnknown_var::Attach(feature->GetFather()));
    if (father == nullptr)
        return Decision::Broken(MessageId::ParentERR_01);
    return Siblings{father};
}

ZFXBaseUnknown_var OwnerOf(const Scope& scope) {
    return std::visit(Visitor{[](const Decision&) { return ZFXBaseUnknown_var(); },
                              [](const Steps& steps) { return steps.history; },
                              [](const Propagating& objects) { return ZFXBaseUnknown_var(objects.analysisCase); },
                              [](const Members& members) { return ZFXBaseUnknown_var(members.set); },
                              [](const JobsAcrossCases& jobs) { return ZFXBaseUnknown_var(jobs.model); },
                              [](const Siblings& siblings) { return ZFXBaseUnknown_var(siblings.father); },
                              [](const JobsOfDocument&) { return ZFXBaseUnknown_var(); }},
                      scope);
}

std::optional<ZFXUnicodeString> SetTypeOf(const ZFXISpecObject_var& object) {
    const ZFXISpecObject_var set(Navigation::FirstParentSetOf(object).set);
    return set == nullptr ? std::nullopt : std::optional(set->GetLateType());
}

HRESULT AppendFeaturesOfStep(const ZFXISpecObject_var& step, const std::optional<ZFXUnicodeString>& setType,
                             List& features) {
    if (!setType)
        return E_FAIL;
    const ZFXISamAnalysisScan_var scan(step);
    if (scan == nullptr)
        return E_FAIL;
    List found;
    HRESULT code = scan->FindObjectsOfType(*setType, found, ZFXISamAnalysisScan::kScanMode);
    if (Failed(code))
        return code;
    for (const ZFXBaseUnknown_var& object : found) {
        const ZFXISamAnalysisSet_var set(object);
        if (set == nullptr)
            continue;
        ZFXListValZFXISpecObject_var members;
        std::ignore = set->ListMembers(members, CLSID_ZFXBaseUnknown,
                                       ZFXISamAnalysisSet::kMemberFlag); // The list counts, not the code.
        for (ZFXISpecObject_var& member : members)
            if (!IsPropagated(member))
                features.Append(std::move(member));
        code = S_OK;
    }
    return code;
}

Decision AppendFeaturesOfAllSteps(const ZFXISamAnalysisCase_var& analysisCase, const ListStep& listStep,
                                  List& features) {
    const auto [outcome, history] = Navigation::SimulationHistoryOf(analysisCase);
    if (outcome == Navigation::HistoryOutcome::NotFound)
        return Decision::Broken(MessageId::AnalysisCaseERR_03);
    if (outcome != Navigation::HistoryOutcome::Found)
        return Decision::Broken(MessageId::ObjectParentERR_01);
    List steps;
    HRESULT code = history->ListChildren(steps, ZFXISamAnalysisScan::kScanMode);
    if (Failed(code))
        return {.code = code};
    for (const ZFXBaseUnknown_var& child : steps) {
        ZFXISpecObject_var step(child);
        List inStep;
        code = listStep(step, inStep);
        if (Failed(code))
            continue;
        for (ZFXBaseUnknown_var& feature : inStep)
            features.Append(std::move(feature));
    }
    return {.code = code};
}

Decision CompareWith(const Scope& scope, const ListStep& listStep, const Compare& compare) {
    List features;
    const auto orFailure = [&](const Decision& listing) { return listing.IsFailure() ? listing : compare(features); };
    return std::visit(Visitor{
                          [](const Decision& decision) { return decision; },
                          [&](const Steps& steps) {
                              const ZFXISamAnalysisScan_var scan(steps.history);
                              const bool isListed =
                                  scan != nullptr &&
                                  !Failed(scan->ListChildren(features, ZFXISamAnalysisScan::kScanMode));
                              return orFailure(isListed ? Decision{} : Decision::Broken(MessageId::StepParentERR_02));
                          },
                          [&](const Propagating& propagating) {
                              return orFailure(AppendFeaturesOfAllSteps(propagating.analysisCase, listStep, features));
                          },
                          [&](const Members& members) {
                              return orFailure({.code = Navigation::AppendMembers(members.set, features)});
                          },
                          [&](const JobsAcrossCases& jobs) { return CompareWithCases(jobs.model, compare); },
                          [&](const Siblings& siblings) {
                              std::ignore = siblings.father->ListChildren(
                                  features, ZFXISamAnalysisScan::kScanMode); // The list counts, not the code.
                              return compare(features);
                          },
                          [&](const JobsOfDocument&) {
                              ZFXListValZFXISpecObject_var jobs = AllJobs();
                              for (ZFXISpecObject_var& job : jobs)
                                  features.Append(std::move(job));
                              return compare(features);
                          },
                      },
                      scope);
}

Decision ComparisonFailed(const Scope& scope, MessageId comparison, const ZFXBaseUnknown_var& other) {
    if (std::holds_alternative<Steps>(scope)) {
        const bool isClash = comparison == MessageId::DuplicateNameERR_02;
        return {.rule = isClash ? MessageId::DuplicateNameERR_01 : comparison,
                .comparison = comparison,
                .isOfStep = true,
                .other = other};
    }
    if (std::holds_alternative<Siblings>(scope))
        return {.rule = MessageId::DuplicateZFXNameERR_01, .comparison = comparison, .other = other};
    if (std::holds_alternative<JobsOfDocument>(scope))
        return {.rule = MessageId::DuplicateNameERR_03, .other = other};
    return {.rule = comparison, .other = other};
}

ProposalKind ProposalKindOf(ZFXISpecObject_var& feature) {
    if (QVRIStep_var(feature) != nullptr)
        return ProposalKind::Step;
    return QVRAnalysisEntityUtils::IsObjectAProperty(feature) != 0 ||
                   QVRAnalysisEntityUtils::IsObjectAnAmplitude(feature) != 0
               ? ProposalKind::Property
               : ProposalKind::PropagatingObject;
}

Decision AppendNumberedSteps(ZFXISamAnalysisCase_var& analysisCase, List& features) {
    if (analysisCase == nullptr)
        return Decision::Broken(MessageId::AnalysisCaseERR_01);
    if (QVRAnalysisDocUtils::IsTarnisAnalysisCase(analysisCase) == 0)
        return Decision::Broken(MessageId::AnalysisCaseERR_02);
    const auto [outcome, history] = Navigation::SimulationHistoryOf(analysisCase);
    if (outcome != Navigation::HistoryOutcome::Found)
        return Decision::Broken(MessageId::AnalysisCaseERR_03);
    List steps;
    const HRESULT code = history->ListChildren(steps, ZFXISamAnalysisScan::kScanMode);
    if (Failed(code))
        return {.code = code};
    for (int i = 2; i <= steps.Size(); ++i) // the numbering skips the first child of a history
        features.Append(steps[i]);
    return {};
}

Decision AppendProperties(const ZFXISamAnalysisCase_var& analysisCase, List& features) {
    const ZFXILinkableObject_var linkable(analysisCase);
    if (linkable == nullptr)
        return Decision::Broken(MessageId::AnalysisCaseERR_01);
    const ZFXDocument* document = linkable->GetOwningDocument();
    if (document == nullptr)
        return Decision::Broken(MessageId::DocumentERR_01);
    ZFXISamAnalysisModel_var model;
    if (Failed(QVRAnalysisDocUtils::GetAnalysisModel(model, document)))
        return Decision::Broken(MessageId::ErrorAnalysisModelErr_0004);
    const ZFXISamAnalysisScan_var scan(model);
    List found;
    if (scan != nullptr) // the list is used even after a failure
        std::ignore =
            scan->FindObjectsOfType(Vocabulary::QVRTarnisPropertySetLT, found, ZFXISamAnalysisScan::kScanMode);
    const ZFXISamAnalysisSet_var propertySet(found.Size() == 0 ? ZFXBaseUnknown_var() : found[1]);
    if (propertySet == nullptr || Failed(Navigation::AppendMembers(propertySet, features)))
        return Decision::Broken(MessageId::PropertySetERR_01);
    return {};
}

Decision AppendMeshParts(const ZFXISpecObject_var& meshPart, List& features) {
    const ZFXILinkableObject_var linkable(meshPart);
    const ZFXDocument* document = linkable == nullptr ? nullptr : linkable->GetOwningDocument();
    ZFXIMSHMeshManager_var manager;
    if (document == nullptr || Failed(QVRAnalysisDocUtils::GetMeshManager(manager, document)))
        return Decision::Broken(MessageId::MeshPartUniqueNameERR);
    const ZFXISamAnalysisSet_var set(manager);
    if (set == nullptr || Failed(Navigation::AppendMembers(set, features)))
        return Decision::Broken(MessageId::MeshPartUniqueNameERR);
    return {};
}

ZFXListValZFXISpecObject_var AllJobs() {
    List cases;
    std::ignore = QVRAnalysisDocUtils::GetAllAnalysisCases(cases, nullptr); // the list is used even after a failure
    ZFXListValZFXISpecObject_var jobs;
    std::ignore = QVRAnalysisDocUtils::GetJobs(cases, jobs); // the list is used even after a failure
    return jobs;
}

} // namespace NameScopes
