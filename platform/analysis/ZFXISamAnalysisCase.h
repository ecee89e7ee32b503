#pragma once

#include "object-model/ZFXInterfaces.h"

/// An analysis case: a feature under the model that holds one simulation history and its job containers.
class ZFX_PLATFORM_EXPORT ZFXISamAnalysisCase : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISamAnalysisCase)
};

using ZFXISamAnalysisCase_var = ZFXHandle<ZFXISamAnalysisCase>;
