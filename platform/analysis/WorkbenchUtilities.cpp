#include "analysis/WorkbenchUtilities.h"

#include <cassert>

namespace {

AnalysisServices* installed = nullptr;
bool wereDestroyedWhileInstalled = false;

/// Returns the result of an operation of the installed services, or `fallback` if none are installed.
template <class Result, class... Parameters, class... Arguments>
Result Request(Result (AnalysisServices::*operation)(Parameters...), Result fallback, Arguments&&... arguments) {
    return installed == nullptr ? fallback : (installed->*operation)(std::forward<Arguments>(arguments)...);
}

constexpr unsigned char kNo = 0;

} // namespace

AnalysisServices::~AnalysisServices() {
    if (installed != this)
        return;
    installed = nullptr;
    wereDestroyedWhileInstalled = true;
}
void AnalysisServices::Install(AnalysisServices* services) noexcept {
    installed = services;
    wereDestroyedWhileInstalled = false;
}
bool AnalysisServices::WereDestroyedWhileInstalled() noexcept { return wereDestroyedWhileInstalled; }
AnalysisServices* AnalysisServices::Installed() noexcept { return installed; }

HRESULT QVRAnalysisDocUtils::GetAllAnalysisCases(ZFXListValZFXBaseUnknown_var& cases, ZFXDocument* document) {
    assert(cases.Size() == 0 && "AnalysisServices::GetAllAnalysisCases: the list is not empty");
    return Request(&AnalysisServices::GetAllAnalysisCases, E_FAIL, cases, document);
}

HRESULT QVRAnalysisDocUtils::GetJobs(const ZFXListValZFXBaseUnknown_var& cases, ZFXListValZFXISpecObject_var& jobs) {
    assert(jobs.Size() == 0 && "AnalysisServices::GetJobs: the list is not empty");
    return Request(&AnalysisServices::GetJobs, E_FAIL, cases, jobs);
}

HRESULT QVRAnalysisDocUtils::GetAnalysisModel(ZFXISamAnalysisModel_var& model, const ZFXDocument* document) {
    assert(model == nullptr && "AnalysisServices::GetAnalysisModel: the handle is not empty");
    return Request(&AnalysisServices::GetAnalysisModel, E_FAIL, model, document);
}

HRESULT QVRAnalysisDocUtils::GetMeshManager(ZFXIMSHMeshManager_var& manager, const ZFXDocument* document) {
    assert(manager == nullptr && "AnalysisServices::GetMeshManager: the handle is not empty");
    return Request(&AnalysisServices::GetMeshManager, E_FAIL, manager, document);
}

unsigned char QVRAnalysisDocUtils::IsTarnisAnalysisCase(ZFXISamAnalysisCase_var& analysisCase) {
    return Request(&AnalysisServices::IsTarnisAnalysisCase, kNo, analysisCase);
}

HRESULT QVRAnalysisEntityUtils::GetParentStep(const ZFXISpecObject_var& feature, ZFXISpecObject_var& step) {
    assert(step == nullptr && "AnalysisServices::GetParentStep: the handle is not empty");
    return Request(&AnalysisServices::GetParentStep, E_FAIL, feature, step);
}

HRESULT QVRAnalysisEntityUtils::GetParentCaseFromObject(const ZFXISpecObject_var& feature, ZFXISpecObject_var& parent) {
    assert(parent == nullptr && "AnalysisServices::GetParentCaseFromObject: the handle is not empty");
    return Request(&AnalysisServices::GetParentCaseFromObject, E_FAIL, feature, parent);
}

unsigned char QVRAnalysisEntityUtils::IsObjectAProperty(ZFXISpecObject_var& feature) {
    return Request(&AnalysisServices::IsObjectAProperty, kNo, feature);
}

unsigned char QVRAnalysisEntityUtils::IsObjectAnAmplitude(ZFXISpecObject_var& feature) {
    return Request(&AnalysisServices::IsObjectAnAmplitude, kNo, feature);
}

HRESULT QVRStepUtils::GetCurrentAnalysisCaseSP(ZFXISamAnalysisCase_var& analysisCase, ZFXDocument* document) {
    assert(analysisCase == nullptr && "AnalysisServices::GetCurrentAnalysisCaseSP: the handle is not empty");
    return Request(&AnalysisServices::GetCurrentAnalysisCaseSP, E_FAIL, analysisCase, document);
}
