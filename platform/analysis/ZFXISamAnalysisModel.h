#pragma once

#include "object-model/ZFXInterfaces.h"

/// The analysis model of a document: holds its analysis cases and its property set.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisModel : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisModel)

    /// The model's analysis cases. [appends]
    virtual HRESULT ListAnalysisCases(ZFXListValZFXBaseUnknown_var& cases) = 0;
};

using ZFXISamAnalysisModel_var = ZFXHandle<ZFXISamAnalysisModel>;
