#pragma once

#include "object-model/ZFXInterfaces.h"

/// A support: what a feature is applied to, through connectors.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisSupport : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisSupport)

    /// The support's connectors, in order. [appends]
    virtual HRESULT ListConnectors(ZFXListValZFXBaseUnknown_var& connectors) = 0;
};

using ZFXISamAnalysisSupport_var = ZFXHandle<ZFXISamAnalysisSupport>;
