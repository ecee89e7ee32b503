#pragma once

#include "object-model/ZFXInterfaces.h"

/// A connection between a master side and a slave side.
class ZFX_PLATFORM_EXPORT QVRISamAnalysisConnectionDesign : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(QVRISamAnalysisConnectionDesign)

    /// Appends the connectors of each side to its list. [appends]
    ///
    /// The naming module does not read the code: on failure, connectors that are in the lists count. It reads the group
    /// names only if each side has exactly one connector.
    virtual HRESULT GetMasterAndSlaveConnectors(ZFXListValZFXBaseUnknown_var& master,
                                                ZFXListValZFXBaseUnknown_var& slave) = 0;
};

using QVRISamAnalysisConnectionDesign_var = ZFXHandle<QVRISamAnalysisConnectionDesign>;
