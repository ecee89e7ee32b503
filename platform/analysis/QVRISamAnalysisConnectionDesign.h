#pragma once

#include "object-model/ZFXInterfaces.h"

/// A connection between a master side and a slave side.
class ZFX_PLATFORM_EXPORT QVRISamAnalysisConnectionDesign : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(QVRISamAnalysisConnectionDesign)

    /// The connectors of the master side and of the slave side. [appends]
    virtual HRESULT GetMasterAndSlaveConnectors(ZFXListValZFXBaseUnknown_var& master,
                                                ZFXListValZFXBaseUnknown_var& slave) = 0;
};

using QVRISamAnalysisConnectionDesign_var = ZFXHandle<QVRISamAnalysisConnectionDesign>;
