#pragma once

#include "object-model/ZFXInterfaces.h"

/// A step content feature that propagates through the steps of its case.
class ZFX_PLATFORM_EXPORT QVRIPropagatingFeature : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(QVRIPropagatingFeature)

    /// Nonzero when the feature only came into its step from an earlier one, and so is no object of that
    /// step.
    virtual int IsPropagated() = 0;
};

using QVRIPropagatingFeature_var = ZFXHandle<QVRIPropagatingFeature>;
