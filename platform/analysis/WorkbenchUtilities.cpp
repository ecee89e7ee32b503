#include "analysis/WorkbenchUtilities.h"

namespace {

AnalysisServices* installed = nullptr;

/// What the installed services answer to one of their questions, or the answer of nobody.
template <class Answer, class... Parameters, class... Arguments>
Answer Ask(Answer (AnalysisServices::*question)(Parameters...), Answer nobody, Arguments&&... arguments) {
    return installed == nullptr ? nobody : (installed->*question)(std::forward<Arguments>(arguments)...);
}

constexpr unsigned char kNo = 0;

} // namespace

AnalysisServices::~AnalysisServices() = default;
void AnalysisServices::Install(AnalysisServices* services) noexcept { installed = services; }
AnalysisServices* AnalysisServices::Installed() noexcept { return installed; }

HRESULT QVRAnalysisDocUtils::GetAllAnalysisCases(ZFXListValZFXBaseUnknown_var& cases, ZFXDocument* document) {
    return Ask(&AnalysisServices::GetAllAnalysisCases, E_FAIL, cases, document);
}

HRESULT QVRAnalysisDocUtils::GetJobs(const ZFXListValZFXBaseUnknown_var& cases, ZFXListValZFXISpecObject_var& jobs) {
    return Ask(&AnalysisServices::GetJobs, E_FAIL, cases, jobs);
}

HRESULT QVRAnalysisDocUtils::GetAnalysisModel(ZFXISamAnalysisModel_var& model, const ZFXDocument* document) {
    return Ask(&AnalysisServices::GetAnalysisModel, E_FAIL, model, document);
}

HRESULT QVRAnalysisDocUtils::GetMeshManager(ZFXIMSHMeshManager_var& manager, const ZFXDocument* document) {
    return Ask(&AnalysisServices::GetMeshManager, E_FAIL, manager, document);
}

unsigned char QVRAnalysisDocUtils::IsTarnisAnalysisCase(ZFXISamAnalysisCase_var& analysisCase) {
    return Ask(&AnalysisServices::IsTarnisAnalysisCase, kNo, analysisCase);
}

HRESULT QVRAnalysisEntityUtils::GetParentStep(const ZFXISpecObject_var& feature, ZFXISpecObject_var& step) {
    return Ask(&AnalysisServices::GetParentStep, E_FAIL, feature, step);
}

HRESULT QVRAnalysisEntityUtils::GetParentCaseFromObject(const ZFXISpecObject_var& feature, ZFXISpecObject_var& parent) {
    return Ask(&AnalysisServices::GetParentCaseFromObject, E_FAIL, feature, parent);
}

unsigned char QVRAnalysisEntityUtils::IsObjectAProperty(ZFXISpecObject_var& feature) {
    return Ask(&AnalysisServices::IsObjectAProperty, kNo, feature);
}

unsigned char QVRAnalysisEntityUtils::IsObjectAnAmplitude(ZFXISpecObject_var& feature) {
    return Ask(&AnalysisServices::IsObjectAnAmplitude, kNo, feature);
}

HRESULT QVRStepUtils::GetCurrentAnalysisCaseSP(ZFXISamAnalysisCase_var& analysisCase, ZFXDocument* document) {
    return Ask(&AnalysisServices::GetCurrentAnalysisCaseSP, E_FAIL, analysisCase, document);
}
