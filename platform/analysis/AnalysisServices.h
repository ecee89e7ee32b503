#pragma once

#include "analysis/ZFXDocument.h"
#include "analysis/ZFXIMSHMeshManager.h"
#include "analysis/ZFXISamAnalysisCase.h"
#include "analysis/ZFXISamAnalysisModel.h"
#include "analysis/ZFXISpecObject.h"

/// Requests about a document that no single object can fulfil. A host implements this class and installs one instance;
/// the static utilities of `analysis/WorkbenchUtilities.h` forward to it.
///
/// Rules for all operations:
/// - A negative code is a failure. On failure the outputs stay unchanged, unless stated otherwise.
/// - A request for objects that the documents of the host do not have fails, or returns 0.
/// - Lists are filled by appending and have indexes from 1 to Size(). The caller passes an empty list or handle.
/// - A null `document` is the document that is current in the application.
/// - No operation throws.
class ZFX_PLATFORM_EXPORT AnalysisServices {
public:
    AnalysisServices() = default;
    AnalysisServices(const AnalysisServices&) = delete;
    AnalysisServices& operator=(const AnalysisServices&) = delete;
    /// Uninstalls the services if they are still installed.
    virtual ~AnalysisServices();

    /// Installs the services of the process. They replace those installed before.
    /// @param services  the services, or null to uninstall. [borrowed] Uninstall them before you destroy them: the
    ///                  destructor of this class also uninstalls them, but only after that of the derived class.
    static void Install(AnalysisServices* services) noexcept;
    /// Returns the installed services, or null if there are none. [borrowed]
    [[nodiscard]] static AnalysisServices* Installed() noexcept;
    /// Returns true if the services that were installed last were destroyed without being uninstalled.
    [[nodiscard]] static bool WereDestroyedWhileInstalled() noexcept;

    /// Appends the analysis cases of a document. [appends]
    ///
    /// The naming module does not read the code: on failure, cases that are in the list count.
    virtual HRESULT GetAllAnalysisCases(ZFXListValZFXBaseUnknown_var& cases, ZFXDocument* document) = 0;
    /// Appends the jobs of these cases, in the order of the cases. [appends]
    ///
    /// The naming module does not read the code: on failure, jobs that are in the list count.
    virtual HRESULT GetJobs(const ZFXListValZFXBaseUnknown_var& cases, ZFXListValZFXISpecObject_var& jobs) = 0;
    /// Sets `model` to the analysis model of a document. Fails if the document has none; then no name can be proposed
    /// for properties and amplitudes.
    virtual HRESULT GetAnalysisModel(ZFXISamAnalysisModel_var& model, const ZFXDocument* document) = 0;
    /// Sets `manager` to the mesh manager of a document. Fails if the document has none; then no name can be proposed
    /// for mesh parts.
    virtual HRESULT GetMeshManager(ZFXIMSHMeshManager_var& manager, const ZFXDocument* document) = 0;
    /// Returns a nonzero value if the case belongs to the solver. For other cases no step names are proposed.
    virtual unsigned char IsTarnisAnalysisCase(ZFXISamAnalysisCase_var& analysisCase) = 0;
    /// Sets `step` to the step that contains the feature. If no step contains it, succeeds and leaves `step` empty.
    virtual HRESULT GetParentStep(const ZFXISpecObject_var& feature, ZFXISpecObject_var& step) = 0;
    /// Sets `parent` to the analysis case that contains the feature. Fails if no case contains it; then the current
    /// case of the feature's document is used instead.
    virtual HRESULT GetParentCaseFromObject(const ZFXISpecObject_var& feature, ZFXISpecObject_var& parent) = 0;
    /// Returns a nonzero value if the feature is a property. New names of properties are numbered in the property set.
    virtual unsigned char IsObjectAProperty(ZFXISpecObject_var& feature) = 0;
    /// Returns a nonzero value if the feature is an amplitude. New names of amplitudes are numbered in the property
    /// set.
    virtual unsigned char IsObjectAnAmplitude(ZFXISpecObject_var& feature) = 0;
    /// Sets `analysisCase` to the current case of a document. If no case is current, succeeds and leaves it empty.
    virtual HRESULT GetCurrentAnalysisCaseSP(ZFXISamAnalysisCase_var& analysisCase, ZFXDocument* document) = 0;
};
