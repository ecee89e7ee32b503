#pragma once

#include "analysis/ZFXDocument.h"
#include "analysis/ZFXIMSHMeshManager.h"
#include "analysis/ZFXISamAnalysisCase.h"
#include "analysis/ZFXISamAnalysisModel.h"
#include "analysis/ZFXISpecObject.h"

/// The questions about a document that only its model can answer. A host implements them and installs one
/// instance; the static utilities of `analysis/WorkbenchUtilities.h` forward to it.
class ZFX_PLATFORM_EXPORT AnalysisServices {
public:
    AnalysisServices() = default;
    AnalysisServices(const AnalysisServices&) = delete;
    AnalysisServices& operator=(const AnalysisServices&) = delete;
    virtual ~AnalysisServices();

    /// Null takes the installed instance away. The instance stays the caller's and must be taken away before
    /// it is destroyed. [borrowed]
    static void Install(AnalysisServices* services) noexcept;
    /// The installed instance, or null. [borrowed]
    static AnalysisServices* Installed() noexcept;

    /// The analysis cases of the document, or of the current one when null is passed. [appends]
    virtual HRESULT GetAllAnalysisCases(ZFXListValZFXBaseUnknown_var& cases, ZFXDocument* document) = 0;
    /// The jobs of these cases, in order. [appends]
    virtual HRESULT GetJobs(const ZFXListValZFXBaseUnknown_var& cases, ZFXListValZFXISpecObject_var& jobs) = 0;
    /// The analysis model of the document; a failure when it has none.
    virtual HRESULT GetAnalysisModel(ZFXISamAnalysisModel_var& model, const ZFXDocument* document) = 0;
    /// The mesh manager of the document; a failure when it has none.
    virtual HRESULT GetMeshManager(ZFXIMSHMeshManager_var& manager, const ZFXDocument* document) = 0;
    /// Nonzero when the case is one of the solver's own.
    virtual unsigned char IsTarnisAnalysisCase(ZFXISamAnalysisCase_var& analysisCase) = 0;
    /// The step that holds the feature; success with an empty handle when it lies in none.
    virtual HRESULT GetParentStep(const ZFXISpecObject_var& feature, ZFXISpecObject_var& step) = 0;
    /// The analysis case that holds the feature; a failure when it lies in none.
    virtual HRESULT GetParentCaseFromObject(const ZFXISpecObject_var& feature, ZFXISpecObject_var& parent) = 0;
    /// Nonzero for what is numbered in the property set.
    virtual unsigned char IsObjectAProperty(ZFXISpecObject_var& feature) = 0;
    /// Nonzero for an amplitude, which is numbered there too.
    virtual unsigned char IsObjectAnAmplitude(ZFXISpecObject_var& feature) = 0;
    /// The case that is current in the document, or in the application when null is passed; success with an
    /// empty handle when there is none.
    virtual HRESULT GetCurrentAnalysisCaseSP(ZFXISamAnalysisCase_var& analysisCase, ZFXDocument* document) = 0;
};
