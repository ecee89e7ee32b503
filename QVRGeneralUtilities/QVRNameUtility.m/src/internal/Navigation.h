#pragma once

#include "analysis/ZFXISamAnalysisCase.h"
#include "analysis/ZFXISamAnalysisScan.h"
#include "analysis/ZFXISamAnalysisSet.h"
#include "analysis/ZFXISpecObject.h"

/// The walks over a document that several operations make. A walk tells what it met and refuses nothing: the
/// same outcome deserves different answers from different callers.
namespace Navigation {

enum class HistoryOutcome { CaseNotSearchable, NotFound, HistoryNotSearchable, Found };

struct HistoryResult {
    HistoryOutcome outcome;
    ZFXISamAnalysisScan_var history; ///< empty unless found
};

/// The simulation history of a case: the first object of its late type under the case. A failed search is one
/// that found nothing.
HistoryResult SimulationHistoryOf(const ZFXISamAnalysisCase_var& analysisCase);

/// The simulation history above a step: the first owner of that late type among the attributes that point at
/// the step. Empty when there is none.
ZFXBaseUnknown_var SimulationHistoryAbove(const ZFXISpecObject_var& step);

enum class ParentSetOutcome { NoEntity, RequestFailed, NoList, EmptyList, Found };

struct ParentSetResult {
    ParentSetOutcome outcome;
    HRESULT code;              ///< of the request; S_OK when none was made
    ZFXBaseUnknown_var holder; ///< empty unless found
};

/// The set that holds a feature: the first of those that its entity names.
ParentSetResult FirstParentSetOf(const ZFXISpecObject_var& feature);

/// Appends the members of a set to a scope and returns the code of the request: what the list holds is taken
/// whatever the code is. The set must not be empty.
HRESULT AppendMembers(const ZFXISamAnalysisSet_var& set, ZFXListValZFXBaseUnknown_var& scope);

} // namespace Navigation
