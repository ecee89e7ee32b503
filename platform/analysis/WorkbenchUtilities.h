#pragma once

#include "analysis/AnalysisServices.h"

// The static utilities of the workbench. Each forwards to the operation of AnalysisServices that has its name, and
// returns the result. If no services are installed, it returns E_FAIL or 0 and leaves the outputs unchanged.

/// Finds the objects of a document.
class ZFX_PLATFORM_EXPORT QVRAnalysisDocUtils {
public:
    /// Forwards to AnalysisServices::GetAllAnalysisCases. [appends]
    static HRESULT GetAllAnalysisCases(ZFXListValZFXBaseUnknown_var& cases, ZFXDocument* document);
    /// Forwards to AnalysisServices::GetJobs. [appends]
    static HRESULT GetJobs(const ZFXListValZFXBaseUnknown_var& cases, ZFXListValZFXISpecObject_var& jobs);
    /// Forwards to AnalysisServices::GetAnalysisModel.
    static HRESULT GetAnalysisModel(ZFXISamAnalysisModel_var& model, const ZFXDocument* document);
    /// Forwards to AnalysisServices::GetMeshManager.
    static HRESULT GetMeshManager(ZFXIMSHMeshManager_var& manager, const ZFXDocument* document);
    /// Forwards to AnalysisServices::IsTarnisAnalysisCase.
    [[nodiscard]] static unsigned char IsTarnisAnalysisCase(ZFXISamAnalysisCase_var& analysisCase);
};

/// Finds the parents of a feature and classifies it.
class ZFX_PLATFORM_EXPORT QVRAnalysisEntityUtils {
public:
    /// Forwards to AnalysisServices::GetParentStep.
    static HRESULT GetParentStep(const ZFXISpecObject_var& feature, ZFXISpecObject_var& step);
    /// Forwards to AnalysisServices::GetParentCaseFromObject.
    static HRESULT GetParentCaseFromObject(const ZFXISpecObject_var& feature, ZFXISpecObject_var& parent);
    /// Forwards to AnalysisServices::IsObjectAProperty.
    [[nodiscard]] static unsigned char IsObjectAProperty(ZFXISpecObject_var& feature);
    /// Forwards to AnalysisServices::IsObjectAnAmplitude.
    [[nodiscard]] static unsigned char IsObjectAnAmplitude(ZFXISpecObject_var& feature);
};

/// Finds the current analysis case.
class ZFX_PLATFORM_EXPORT QVRStepUtils {
public:
    /// Forwards to AnalysisServices::GetCurrentAnalysisCaseSP.
    static HRESULT GetCurrentAnalysisCaseSP(ZFXISamAnalysisCase_var& analysisCase, ZFXDocument* document);
};
