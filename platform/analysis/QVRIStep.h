#pragma once

#include "object-model/ZFXInterfaces.h"

/// Marks a step of a simulation history. No other object may offer this interface: it selects the rules for step names.
class ZFX_PLATFORM_EXPORT QVRIStep : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(QVRIStep)
};

using QVRIStep_var = ZFXHandle<QVRIStep>;
