#pragma once

#include "analysis/ZFXISamAnalysisCase.h"
#include "analysis/ZFXISamAnalysisModel.h"
#include "analysis/ZFXISamAnalysisScan.h"
#include "analysis/ZFXISamAnalysisSet.h"
#include "internal/Decision.h"

#include <functional>
#include <optional>
#include <variant>

/// The scopes of names: which features a name is compared with, and which features are counted for a proposal. No
/// function registers an error or prints: a failure is part of the result.
namespace NameScopes {

// ---- Checks: the features that a name is compared with ----

/// The steps of a simulation history.
struct Steps {
    ZFXBaseUnknown_var history;
};
/// The features in sets of one late type in all steps of a case.
struct Propagating {
    ZFXISamAnalysisCase_var analysisCase;
};
/// The members of a set.
struct Members {
    ZFXISamAnalysisSet_var set;
};
/// The jobs in the first job container of each case of a model.
struct JobsAcrossCases {
    ZFXISamAnalysisModel_var model;
};
/// The children of a bolt tightening's father.
struct Siblings {
    ZFXISamAnalysisScan_var father;
};
/// The jobs of the current document. A job without a name has the name "".
struct JobsOfDocument {};

/// The scope of a feature, or the decision about a feature whose name is compared with no other.
using Scope = std::variant<Decision, Steps, Propagating, Members, JobsAcrossCases, Siblings, JobsOfDocument>;

enum class Kind { Step, PropagatingObject, Member };
/// Returns the kind of scope that follows from the interfaces of a feature.
[[nodiscard]] Kind KindOf(const ZFXISpecObject_var& feature);

Scope OfStep(const ZFXISpecObject_var& step);
Scope OfPropagatingObject(const ZFXISpecObject_var& object);
Scope OfMember(const ZFXISpecObject_var& object);
/// Returns one of the three scopes above, by KindOf.
Scope OfFeature(const ZFXISpecObject_var& feature);
Scope OfJob(const ZFXISpecObject_var& job);
Scope OfBoltTightening(const ZFXISpecObject_var& feature);

/// Returns the object whose requests list the features; empty for a Decision and for JobsOfDocument.
ZFXBaseUnknown_var OwnerOf(const Scope& scope);
/// Returns the late type of the first set that contains the object, or nothing if it cannot be determined.
std::optional<ZFXUnicodeString> SetTypeOf(const ZFXISpecObject_var& object);
/// Appends the members of the step's sets of a late type, without propagated ones.
HRESULT AppendFeaturesOfStep(const ZFXISpecObject_var& step, const std::optional<ZFXUnicodeString>& setType,
                             ZFXListValZFXBaseUnknown_var& features);

/// Appends the features of one step to a list and returns the code of the request.
using ListStep = std::function<HRESULT(ZFXISpecObject_var& step, ZFXListValZFXBaseUnknown_var& features)>;
/// Lists the features of all steps. A step for which `listStep` fails contributes none; the last code is the result.
Decision AppendFeaturesOfAllSteps(const ZFXISamAnalysisCase_var& analysisCase, const ListStep& listStep,
                                  ZFXListValZFXBaseUnknown_var& features);

/// A list of features to compare a name with, one after the other until one comparison fails.
using Compare = std::function<Decision(const ZFXListValZFXBaseUnknown_var& features)>;
/// Lists the features of a scope and calls `compare` with them, for JobsAcrossCases once for each case. Stops at the
/// first failure of a request or of `compare` and returns it.
/// @param listStep  lists the features of one step for Propagating
Decision CompareWith(const Scope& scope, const ListStep& listStep, const Compare& compare);

/// Returns the decision about a name for which the comparison with a feature of the scope failed.
/// @param comparison  "DuplicateNameERR_02" for a clash, "ZFXIAliasERR_01" for a feature without a name
Decision ComparisonFailed(const Scope& scope, MessageId comparison, const ZFXBaseUnknown_var& other);

// ---- Proposals: the features whose names are counted ----

enum class ProposalKind { Step, Property, PropagatingObject };
/// Returns the kind of scope in which a name for the feature is proposed. Amplitudes are treated like properties.
[[nodiscard]] ProposalKind ProposalKindOf(ZFXISpecObject_var& feature);

/// Appends the steps of a case except the first.
[[nodiscard]] Decision AppendNumberedSteps(ZFXISamAnalysisCase_var& analysisCase,
                                           ZFXListValZFXBaseUnknown_var& features);
/// Appends the members of the property set in the document of a case.
[[nodiscard]] Decision AppendProperties(const ZFXISamAnalysisCase_var& analysisCase,
                                        ZFXListValZFXBaseUnknown_var& features);
/// Appends the mesh parts in the document of a mesh part.
[[nodiscard]] Decision AppendMeshParts(const ZFXISpecObject_var& meshPart, ZFXListValZFXBaseUnknown_var& features);
/// Returns every job of every case of the current document. Skips cases and jobs that cannot be listed.
[[nodiscard]] ZFXListValZFXISpecObject_var AllJobs();

} // namespace NameScopes
