#pragma once

#include "object-model/ZFXInterfaces.h"

/// An attribute of one feature that points at another feature.
class ZFX_PLATFORM_EXPORT ZFXISpecAttribute : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXISpecAttribute)

    /// Returns the feature that has the attribute, or null. [new reference]
    virtual ZFXBaseUnknown* GetOwner() = 0;
};

using ZFXISpecAttribute_var = ZFXHandle<ZFXISpecAttribute>;
using ZFXListValZFXISpecAttribute_var = ZFXListVal<ZFXISpecAttribute_var>;
