// The operations that choose the scope of a name by the interfaces of the feature, and the constructors of the class.

#include "QVRNameUtil.h"

#include "analysis/QVRIStep.h"
#include "analysis/WorkbenchUtilities.h"
#include "analysis/ZFXIAlias.h"
#include "internal/InputErrors.h"
#include "internal/NameDecisions.h"

#include <tuple>

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
    return Raise(NameDecisions::OfName(feature, {name}, checkStartAndEnd != 0));
}

HRESULT QVRNameUtil::CheckFileName(ZFXISpecObject_var& feature, const ZFXUnicodeString& fileName) noexcept {
    const ZFXIAlias_var alias(feature);
    if (alias == nullptr)
        return InputErrorReturn(MessageId::ZFXIAliasERR_01);
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
    ZFXISamAnalysisCase_var scopeCase(analysisCase);
    if (scopeCase == nullptr &&
        (Failed(QVRStepUtils::GetCurrentAnalysisCaseSP(scopeCase, nullptr)) || scopeCase == nullptr))
        return;
    // The operation returns no code. Each failure below leaves the name unchanged.
    if (QVRIStep_var(feature) != nullptr)
        std::ignore = GetUniqueNameForStep(name, scopeCase);
    else if (QVRAnalysisEntityUtils::IsObjectAProperty(feature) != 0 ||
             QVRAnalysisEntityUtils::IsObjectAnAmplitude(feature) != 0)
        std::ignore = GetUniqueNameForProperty(name, scopeCase);
    else
        std::ignore = GetUniqueNameForPropagatingObject(name, feature, scopeCase);
}
