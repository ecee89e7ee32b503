#pragma once

#include "object-model/ZFXInterfaces.h"

/// Marks an analysis case: a child of the analysis model that contains one simulation history and the job containers.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisCase : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisCase)
};

using ZFXISamAnalysisCase_var = ZFXHandle<ZFXISamAnalysisCase>;
