#pragma once

#include "analysis/AnalysisServices.h"

// The workbench's utilities, called by name. Each answers what the installed AnalysisServices answers, and
// E_FAIL (or 0) with its outputs untouched when none is installed.

/// What a document holds. Without installed services each answers E_FAIL or 0, its outputs untouched.
class ZFX_PLATFORM_EXPORT QVRAnalysisDocUtils {
public:
    /// As AnalysisServices::GetAllAnalysisCases.
    static HRESULT GetAllAnalysisCases(ZFXListValZFXBaseUnknown_var& cases, ZFXDocument* document);
    /// As AnalysisServices::GetJobs.
    static HRESULT GetJobs(const ZFXListValZFXBaseUnknown_var& cases, ZFXListValZFXISpecObject_var& jobs);
    /// As AnalysisServices::GetAnalysisModel.
    static HRESULT GetAnalysisModel(ZFXISamAnalysisModel_var& model, const ZFXDocument* document);
    /// As AnalysisServices::GetMeshManager.
    static HRESULT GetMeshManager(ZFXIMSHMeshManager_var& manager, const ZFXDocument* document);
    /// As AnalysisServices::IsTarnisAnalysisCase.
    static unsigned char IsTarnisAnalysisCase(ZFXISamAnalysisCase_var& analysisCase);
};

/// What a feature is, and what holds it. Without installed services: likewise.
class ZFX_PLATFORM_EXPORT QVRAnalysisEntityUtils {
public:
    /// As AnalysisServices::GetParentStep.
    static HRESULT GetParentStep(const ZFXISpecObject_var& feature, ZFXISpecObject_var& step);
    /// As AnalysisServices::GetParentCaseFromObject.
    static HRESULT GetParentCaseFromObject(const ZFXISpecObject_var& feature, ZFXISpecObject_var& parent);
    /// As AnalysisServices::IsObjectAProperty.
    static unsigned char IsObjectAProperty(ZFXISpecObject_var& feature);
    /// As AnalysisServices::IsObjectAnAmplitude.
    static unsigned char IsObjectAnAmplitude(ZFXISpecObject_var& feature);
};

/// Which case is current. Without installed services: likewise.
class ZFX_PLATFORM_EXPORT QVRStepUtils {
public:
    /// As AnalysisServices::GetCurrentAnalysisCaseSP.
    static HRESULT GetCurrentAnalysisCaseSP(ZFXISamAnalysisCase_var& analysisCase, ZFXDocument* document);
};
