#pragma once

#include "object-model/ZFXInterfaces.h"

/// A connector: leads from a support to a group.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisConnector : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisConnector)

    /// The group; the pointer stays null when there is none. [new reference]
    virtual HRESULT GetGroup(ZFXBaseUnknown*& group) = 0;
};

using ZFXISamAnalysisConnector_var = ZFXHandle<ZFXISamAnalysisConnector>;
