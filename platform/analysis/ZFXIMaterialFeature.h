#pragma once

#include "object-model/ZFXInterfaces.h"
#include "text/ZFXUnicodeString.h"

/// A feature that names a material.
class ZFX_PLATFORM_EXPORT ZFXIMaterialFeature : public ZFXBaseUnknown {
    ZFX_DECLARE_INTERFACE(ZFXIMaterialFeature)

    /// The material's name, which may differ from the display name.
    virtual ZFXUnicodeString GetMaterialFeatureName() = 0;
};

using ZFXIMaterialFeature_var = ZFXHandle<ZFXIMaterialFeature>;
