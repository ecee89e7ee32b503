#pragma once

#include "object-model/ZFXInterfaces.h"

/// A support: connects a feature to the groups that it is applied to.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisSupport : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisSupport)

    /// Appends the connectors of the support, in document order. [appends]
    ///
    /// The naming module does not read the code: on failure, connectors that are in the list count. A support with one
    /// connector has the name of that connector's group.
    virtual HRESULT ListConnectors(ZFXListValZFXBaseUnknown_var& connectors) = 0;
};

using ZFXISamAnalysisSupport_var = ZFXHandle<ZFXISamAnalysisSupport>;
