#pragma once

#include "object-model/ZFXInterfaces.h"

/// A connector between a support or a connection design and a group.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisConnector : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisConnector)

    /// Sets `group` to the group of the connector. Leaves it null if there is none. [new reference]
    ///
    /// @param group  null on entry. The naming module reads it and ignores the code.
    virtual HRESULT GetGroup(ZFXBaseUnknown*& group) = 0;
};

using ZFXISamAnalysisConnector_var = ZFXHandle<ZFXISamAnalysisConnector>;
