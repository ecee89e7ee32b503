#pragma once

#include "object-model/ZFXInterfaces.h"

/// The analysis model of a document. It contains the analysis cases and the property set.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisModel : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisModel)

    /// Appends the analysis cases of the model. [appends]
    ///
    /// The naming module does not read the code: on failure, cases that are in the list count.
    virtual HRESULT ListAnalysisCases(ZFXListValZFXBaseUnknown_var& cases) = 0;
};

using ZFXISamAnalysisModel_var = ZFXHandle<ZFXISamAnalysisModel>;
