#pragma once

#include "analysis/ZFXAnalysisExplicitChild.h"
#include "object-model/ZFXInterfaces.h"

/// An object with explicit data for the solver.
class ZFX_PLATFORM_EXPORT ZFXISamExplicit : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamExplicit)

    /// Makes `child` a view of the explicit data of this object. On failure the naming module does not read `child`.
    ///
    /// @param flag  always 1
    virtual HRESULT GetExplicitChild(ZFXAnalysisExplicitChild& child, int flag) = 0;
};

using ZFXISamExplicit_var = ZFXHandle<ZFXISamExplicit>;
