#pragma once

#include "object-model/ZFXInterfaces.h"

/// A feature of a step, such as a load, that stays active in the later steps of its case. Its names are compared and
/// numbered over all steps of the case.
class ZFX_PLATFORM_EXPORT QVRIPropagatingFeature : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(QVRIPropagatingFeature)

    /// Returns a nonzero value if the feature was created in an earlier step and only continues in this one. It is then
    /// not counted among the objects of this step.
    virtual int IsPropagated() = 0;
};

using QVRIPropagatingFeature_var = ZFXHandle<QVRIPropagatingFeature>;
