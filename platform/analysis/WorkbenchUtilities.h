#pragma once

#include "analysis/AnalysisServices.h"

// The workbench's utilities, called by name. Each answers what the installed AnalysisServices answers, and
// E_FAIL (or 0) with its outputs untouched when none is installed.

class ZFX_PLATFORM_EXPORT QVRAnalysisDocUtils {
public:
    static HRESULT GetAllAnalysisCases(ZFXListValZFXBaseUnknown_var& cases, ZFXDocument* document);
    static HRESULT GetJobs(const ZFXListValZFXBaseUnknown_var& cases, ZFXListValZFXISpecObject_var& jobs);
    static HRESULT GetAnalysisModel(ZFXISamAnalysisModel_var& model, const ZFXDocument* document);
    static HRESULT GetMeshManager(ZFXIMSHMeshManager_var& manager, const ZFXDocument* document);
    static unsigned char IsTarnisAnalysisCase(ZFXISamAnalysisCase_var& analysisCase);
};

class ZFX_PLATFORM_EXPORT QVRAnalysisEntityUtils {
public:
    static HRESULT GetParentStep(const ZFXISpecObject_var& feature, ZFXISpecObject_var& step);
    static HRESULT GetParentCaseFromObject(const ZFXISpecObject_var& feature, ZFXISpecObject_var& parent);
    static unsigned char IsObjectAProperty(ZFXISpecObject_var& feature);
    static unsigned char IsObjectAnAmplitude(ZFXISpecObject_var& feature);
};

class ZFX_PLATFORM_EXPORT QVRStepUtils {
public:
    static HRESULT GetCurrentAnalysisCaseSP(ZFXISamAnalysisCase_var& analysisCase, ZFXDocument* document);
};
