#pragma once

#include "analysis/ZFXISamAnalysisCase.h"
#include "analysis/ZFXISamAnalysisScan.h"
#include "analysis/ZFXISamAnalysisSet.h"
#include "analysis/ZFXISpecObject.h"

/// Finds related objects in a document. Raises no errors, because different operations return different results for
/// one outcome.
namespace Navigation {

enum class HistoryOutcome { CaseNotSearchable, NotFound, HistoryNotSearchable, Found };

struct HistoryResult {
    HistoryOutcome outcome;
    ZFXISamAnalysisScan_var history; ///< empty unless found
};

/// Finds the simulation history of a case: the first object of its late type under the case. The outcome of a failed
/// search is NotFound.
[[nodiscard]] HistoryResult SimulationHistoryOf(const ZFXISamAnalysisCase_var& analysisCase);

/// Returns the simulation history of a step: the first object of its late type among the owners of the attributes that
/// point at the step. Returns an empty handle if there is none. `step` must not be empty.
[[nodiscard]] ZFXBaseUnknown_var SimulationHistoryAbove(const ZFXISpecObject_var& step);

enum class ParentSetOutcome { NoEntity, RequestFailed, NullList, EmptyList, Found };

struct ParentSetResult {
    ParentSetOutcome outcome;
    HRESULT code;           ///< of the request; S_OK if none was made
    ZFXBaseUnknown_var set; ///< empty unless found
};

/// Finds the first of the sets that contain a feature. The outcome is NoEntity if the feature does not offer
/// ZFXISamAnalysisEntity.
[[nodiscard]] ParentSetResult FirstParentSetOf(const ZFXISpecObject_var& feature);

/// Appends the members of a set to a scope, also if the request fails. Returns the code of the request. `set` must not
/// be an empty handle.
[[nodiscard]] HRESULT AppendMembers(const ZFXISamAnalysisSet_var& set, ZFXListValZFXBaseUnknown_var& scope);

} // namespace Navigation
