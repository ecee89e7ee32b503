#pragma once

#include "object-model/ZFXInterfaces.h"

/// A step of a simulation history.
class ZFX_PLATFORM_EXPORT QVRIStep : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(QVRIStep)
};

using QVRIStep_var = ZFXHandle<QVRIStep>;
