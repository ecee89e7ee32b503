#pragma once

#include "analysis/ZFXAnalysisExplicitChild.h"
#include "object-model/ZFXInterfaces.h"

/// An object with explicit data for the solver.
class ZFX_PLATFORM_EXPORT ZFXISamExplicit : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamExplicit)

    /// Returns a view of the explicit data of this object.
    ///
    /// @param child  receives the view; the naming module does not read it after a failure
    /// @param flag   always 1
    virtual HRESULT GetExplicitChild(ZFXAnalysisExplicitChild& child, int flag) = 0;
};

using ZFXISamExplicit_var = ZFXHandle<ZFXISamExplicit>;
