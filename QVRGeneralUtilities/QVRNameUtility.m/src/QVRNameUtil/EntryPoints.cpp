// The operations that choose the scope of a name by the interfaces of the feature, and the constructors of the class.

#include "QVRNameUtil.h"

#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXIAlias.h"
#include "internal/InputErrors.h"
#include "internal/NameDecisions.h"

#include <tuple>

namespace {

/// Returns the case or, if the handle is empty, the current case. Returns an empty handle if no case is current.
ZFXISamAnalysisCase_var ThisOrCurrent(const ZFXISamAnalysisCase_var& analysisCase) {
    ZFXISamAnalysisCase_var current;
    if (analysisCase != nullptr)
        return analysisCase;
    return Failed(QVRStepUtils::GetCurrentAnalysisCaseSP(current, nullptr)) ? ZFXISamAnalysisCase_var() : current;
}

} // namespace

QVRNameUtil::QVRNameUtil() = default;
QVRNameUtil::QVRNameUtil(const QVRNameUtil& other) = default;
QVRNameUtil& QVRNameUtil::operator=(const QVRNameUtil& other) = default;
QVRNameUtil::~QVRNameUtil() = default;

HRESULT QVRNameUtil::IsNameUnique(ZFXISpecObject_var& feature, const ZFXUnicodeString& name) noexcept {
    switch (NameScopes::KindOf(feature)) {
    case NameScopes::Kind::Step:
        return IsUniqueNameForStep(feature, name);
    case NameScopes::Kind::PropagatingObject:
        return IsUniqueNameForPropagatingObject(feature, name);
    case NameScopes::Kind::Member:
        break;
    }
    return IsUniqueNameForObject(feature, name);
}

HRESULT QVRNameUtil::CheckName(ZFXISpecObject_var& feature, const ZFXUnicodeString& name,
                               unsigned char checkStartAndEnd) noexcept {
    return Raise(QVR_HERE, NameDecisions::OfName(feature, {name}, checkStartAndEnd != 0));
}

HRESULT QVRNameUtil::CheckFileName(ZFXISpecObject_var& feature, const ZFXUnicodeString& fileName) noexcept {
    const ZFXIAlias_var alias(feature);
    if (alias == nullptr)
        return InputErrorReturn(QVR_HERE, MessageId::ZFXIAliasERR_01);
    const HRESULT code = IsNameUnique(feature, "");
    if (Failed(code))
        return code;
    ZFXUnicodeString tested = fileName.IsNull() != 0 ? alias->GetAlias() : fileName;
    return IsFileNameValid(tested);
}

void QVRNameUtil::GetUniqueName(ZFXUnicodeString& name, ZFXISpecObject_var& feature,
                                ZFXISamAnalysisCase_var& analysisCase) noexcept {
    if (feature == nullptr)
        return;
    ZFXISamAnalysisCase_var scopeCase = ThisOrCurrent(analysisCase);
    if (scopeCase == nullptr)
        return;
    // The operation returns no code. Each failure below leaves the name unchanged.
    switch (NameScopes::ProposalKindOf(feature)) {
    case NameScopes::ProposalKind::Step:
        std::ignore = GetUniqueNameForStep(name, scopeCase);
        break;
    case NameScopes::ProposalKind::Property:
        std::ignore = GetUniqueNameForProperty(name, scopeCase);
        break;
    case NameScopes::ProposalKind::PropagatingObject:
        std::ignore = GetUniqueNameForPropagatingObject(name, feature, scopeCase);
        break;
    }
}

HRESULT QVRNameUtil::GetUniqueNames(const ZFXUnicodeString& name, ZFXISpecObject_var& feature,
                                    ZFXISamAnalysisCase_var& analysisCase, int count,
                                    ZFXListValZFXUnicodeString& names) noexcept {
    if (count < 1 || feature == nullptr)
        return E_FAIL;
    ZFXISamAnalysisCase_var scopeCase = ThisOrCurrent(analysisCase);
    if (scopeCase == nullptr)
        return E_FAIL;
    ZFXListValZFXBaseUnknown_var scope;
    HRESULT code = S_OK;
    switch (NameScopes::ProposalKindOf(feature)) {
    case NameScopes::ProposalKind::Step:
        code = Raise(QVR_HERE, NameScopes::AppendNumberedSteps(scopeCase, scope));
        break;
    case NameScopes::ProposalKind::Property:
        code = Raise(QVR_HERE, NameScopes::AppendProperties(scopeCase, scope));
        break;
    case NameScopes::ProposalKind::PropagatingObject:
        code = GetAllPropagatingObjects(scopeCase, scope, feature);
        break;
    }
    ZFXUnicodeString base(name);
    return Failed(code) ? code : GetNextUniqueNames(base, scope, count, names);
}
